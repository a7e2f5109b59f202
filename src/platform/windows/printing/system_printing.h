#pragma once

#include "platform/boxes.h"
#include "platform/printing/printing.h"
#include "platform/windows/printing/page_output.h"

namespace trimlog {

/// Printing as a person sees it, over the window in use. Both handed in outlive it.
class SystemPrinting final : public Printing {
 public:
  SystemPrinting(Boxes &boxes, PageOutput &output) : boxes_(boxes), output_(output) {}
  bool PrintList(const PrintedList &list) override;
  bool PrintText(const PrintedText &text) override;
  bool PrintPicture(QWidget &form) override;

 private:
  enum class First { Preview, Nothing };
  bool Print(PagedDocument &document, First first);
  bool OfferPdf(PagedDocument &document);

  Boxes &boxes_;
  PageOutput &output_;
};

}  // namespace trimlog
