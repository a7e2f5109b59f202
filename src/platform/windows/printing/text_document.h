#pragma once

#include "platform/printing/printing.h"
#include "platform/windows/printing/page_output.h"

namespace trimlog {

/// A text on as many pages as it takes, none of it cut off.
class TextDocument final : public PagedDocument {
 public:
  explicit TextDocument(PrintedText text) : text_(std::move(text)) {}
  QString Title() const override { return text_.title; }
  bool PrefersLandscape(const QSizeF &) override { return false; }
  int LayOut(const QSizeF &page) override;
  void DrawPage(QPainter &painter, int page) override;

 private:
  QStringList HeadLines(int page) const;
  int Room(int page) const;  ///< body lines that stand below the head

  PrintedText text_;
  QSizeF page_;
  QStringList lines_;
  QList<int> starts_;  ///< of each page, in lines_
};

}  // namespace trimlog
