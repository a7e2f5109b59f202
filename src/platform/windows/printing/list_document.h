#pragma once

#include <QFont>
#include <QStringList>
#include <vector>

#include "platform/printing/printing.h"
#include "platform/windows/printing/page_output.h"

namespace trimlog {

/// A list of any length on pages: heading, repeated column captions, "Page: n" at the foot. Nothing is cut off: texts
/// wrap, columns that are too wide together are narrowed and the print made smaller, and a row longer than a page goes
/// on on the next one.
class ListDocument final : public PagedDocument {
 public:
  explicit ListDocument(PrintedList list);
  QString Title() const override { return list_.heading; }
  bool PrefersLandscape(const QSizeF &upright) override;
  int LayOut(const QSizeF &page) override;
  void DrawPage(QPainter &painter, int page) override;

 private:
  struct Start {
    int row = 0;
    int line = 0;
  };
  using Lines = std::vector<QStringList>;  ///< of one row, by column

  std::vector<double> WishedWidths();
  void FitColumns(double available);
  double TextWidth(size_t column) const;
  int RowCount() const { return list_.rows + static_cast<int>(list_.closing.size()); }
  QString CellText(int row, int column) const;
  bool IsClosing(int row) const { return row >= list_.rows; }
  QFont BodyFont(bool bold = false) const;
  double LineHeight() const;
  Lines RowLines(int row) const;
  Lines CaptionLines() const;
  double HeadHeight() const;
  double BodyBottom() const;
  /// Draws (or, without a painter, only measures) a page's rows from a start; returns where the next page starts.
  Start FillPage(Start start, QPainter *painter) const;
  void DrawLine(QPainter &painter, const Lines &lines, int line, double top, bool bold) const;
  void DrawHead(QPainter &painter, int page) const;

  PrintedList list_;
  std::vector<double> wished_;
  std::vector<double> widths_;
  double bodySize_ = 0;  ///< of the print, in twips
  QSizeF page_;
  std::vector<Start> starts_;
};

}  // namespace trimlog
