#pragma once

#include <vector>

#include "platform/error.h"
#include "platform/printing/printing.h"

namespace trimlog {

/// A printer that only remembers what was sent to it, in order.
class RecordingPrinting final : public Printing {
 public:
  bool PrintList(const PrintedList &list) override {
    lists.push_back(list);
    return Take("list " + list.heading);
  }
  bool PrintText(const PrintedText &text) override {
    texts.push_back(text);
    return Take("text " + text.title);
  }
  bool PrintPicture(QWidget &form) override {
    if (onPicture) onPicture(form);
    return Take("picture");
  }

  QStringList printed;
  std::vector<PrintedList> lists;
  std::vector<PrintedText> texts;
  std::function<void(QWidget &form)> onPicture;  ///< sees a window as it would stand on the page
  bool broken = false;

 private:
  bool Take(const QString &what) {
    if (broken) throw Error(error_number::other, "out of paper");
    printed.append(what);
    return true;
  }
};

}  // namespace trimlog
