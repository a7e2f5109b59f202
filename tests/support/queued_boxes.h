#pragma once

#include <deque>
#include <vector>

#include "platform/boxes.h"

namespace trimlog {

/// Boxes answered from a queue: each expected box carries the title and a piece of the text that it must have. An
/// unexpected box, a wrong text, a box while a change of the data file is still open, or an answer left over when the
/// test ends fails the test.
class QueuedBoxes final : public Boxes {
 public:
  ~QueuedBoxes() override;

  /// Expects a message box; `text` must be a part of its text (the whole text when `text` is the whole).
  void Expect(const QString &title, const QString &text, BoxButton answer = BoxButton::Ok);
  /// Expects an input box or a file or folder dialog; nothing as the answer means cancelled.
  void ExpectInput(const QString &title, const std::optional<QString> &answer);

  /// Every message box shown so far, for tests that compare word for word.
  const std::vector<Box> &Shown() const { return shown_; }

  /// Tells whether a change is open; a session's boxes are given it when the session is made.
  std::function<bool()> changeOpen;

  BoxButton Show(const Box &box) override;
  std::optional<QString> AskText(const QString &title, const QString &prompt, const QString &initial) override;
  QString ChooseOpenFile(const QString &title, const QStringList &filters, const QString &folder) override;
  QString ChooseSaveFile(const QString &title, const QStringList &filters, const QString &proposed) override;
  QString ChooseFolder(const QString &title, const QString &folder) override;

 private:
  struct Expected {
    bool input = false;
    QString title;
    QString text;
    BoxButton answer = BoxButton::Ok;
    std::optional<QString> typed;
  };
  std::optional<QString> TakeInput(const QString &title);
  void CheckPlace(const QString &title) const;

  std::deque<Expected> queue_;
  std::vector<Box> shown_;
};

}  // namespace trimlog
