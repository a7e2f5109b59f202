#include "platform/windows/printing/list_document.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

#include "platform/windows/printing/printed_lines.h"

namespace trimlog {

namespace {

constexpr double ordinarySize = 180;
constexpr double smallestSize = 120;
constexpr double gap = 140;  // between columns, and between caption line and rows

double WidestWord(const QString &text, const QFontMetricsF &metrics) {
  double widest = 0;
  for (const QString &word : text.simplified().split(QLatin1Char(' '))) {
    widest = std::max(widest, metrics.horizontalAdvance(word));
  }
  return widest;
}

int Height(const std::vector<QStringList> &lines) {
  qsizetype most = 1;
  for (const QStringList &cell : lines) most = std::max(most, cell.size());
  return static_cast<int>(most);
}

}  // namespace

ListDocument::ListDocument(PrintedList list) : list_(std::move(list)) {}

QFont ListDocument::BodyFont(bool bold) const { return PrintFont(bodySize_, bold); }

double ListDocument::LineHeight() const { return bodySize_ * 1.25; }

QString ListDocument::CellText(int row, int column) const {
  if (!IsClosing(row)) return list_.cell(row, column);
  return list_.closing[row - list_.rows].value(column);
}

// Numbers are never wrapped when it can be avoided, so their columns are as wide as the widest one.
std::vector<double> ListDocument::WishedWidths() {
  if (!wished_.empty()) return wished_;
  const QFontMetricsF metrics(PrintFont(ordinarySize, true));
  std::vector<double> wished;
  for (const PrintedColumn &column : list_.columns) {
    const double caption = WidestWord(column.caption, metrics);
    wished.push_back(column.toTheRight ? caption : std::max(caption, column.width));
  }
  // Row by row: each is read from the data file as a whole.
  for (int row = 0; row < RowCount(); ++row) {
    Reached(PrintStage::Measuring, row, RowCount());
    for (size_t column = 0; column < wished.size(); ++column) {
      if (!list_.columns[column].toTheRight) continue;
      const QString text = CellText(row, static_cast<int>(column));
      wished[column] = std::max(wished[column], metrics.horizontalAdvance(text));
    }
  }
  for (double &width : wished) width += gap;
  return wished_ = wished;
}

bool ListDocument::PrefersLandscape(const QSizeF &upright) {
  const std::vector<double> widths = WishedWidths();
  return std::accumulate(widths.begin(), widths.end(), 0.0) > upright.width() * 1.15;
}

void ListDocument::FitColumns(double available) {
  widths_ = WishedWidths();
  bodySize_ = ordinarySize;
  double total = std::accumulate(widths_.begin(), widths_.end(), 0.0);
  if (total <= available) return;
  const double scale = std::max(smallestSize / ordinarySize, available / total);
  bodySize_ = ordinarySize * scale;
  for (double &width : widths_) width *= scale;
  total *= scale;
  if (total <= available) return;
  double texts = 0;
  for (size_t column = 0; column < widths_.size(); ++column) {
    if (!list_.columns[column].toTheRight) texts += widths_[column];
  }
  const double numbers = total - texts;
  const bool textsGiveWay = texts > 0 && available - numbers > texts / 4;
  for (size_t column = 0; column < widths_.size(); ++column) {
    if (!textsGiveWay) widths_[column] *= available / total;
    if (textsGiveWay && !list_.columns[column].toTheRight) widths_[column] *= (available - numbers) / texts;
  }
}

// The gap shrinks with the print, so that what fitted before fits after.
double ListDocument::TextWidth(size_t column) const { return widths_[column] - gap * bodySize_ / ordinarySize; }

ListDocument::Lines ListDocument::RowLines(int row) const {
  const QFont font = BodyFont(IsClosing(row));
  const QFontMetricsF metrics(font);
  Lines lines;
  for (size_t column = 0; column < widths_.size(); ++column) {
    lines.push_back(WrappedLines(CellText(row, static_cast<int>(column)), TextWidth(column), font, metrics));
  }
  return lines;
}

ListDocument::Lines ListDocument::CaptionLines() const {
  const QFont font = BodyFont(true);
  const QFontMetricsF metrics(font);
  Lines lines;
  for (size_t column = 0; column < widths_.size(); ++column) {
    lines.push_back(WrappedLines(list_.columns[column].caption, TextWidth(column), font, metrics));
  }
  return lines;
}

double ListDocument::HeadHeight() const {
  const QFont font = PrintFont(headingPrintSize, true);
  const auto lines = WrappedLines(list_.heading, page_.width(), font, QFontMetricsF(font)).size();
  return static_cast<double>(lines) * headingPrintSize * 1.3 + Height(CaptionLines()) * LineHeight() + 2 * gap;
}

double ListDocument::BodyBottom() const { return page_.height() - ordinarySize * 2.5; }

int ListDocument::LayOut(const QSizeF &page) {
  if (page == page_ && !starts_.empty()) return static_cast<int>(starts_.size());  // a preview asks again and again
  page_ = page;
  FitColumns(page.width());
  starts_.clear();  // as long as it is not laid out to the end, which may be cancelled
  std::vector<Start> starts = {Start{}};
  while (true) {
    const Start next = FillPage(starts.back(), nullptr);
    if (next.row >= RowCount()) break;
    starts.push_back(next);
    Reached(PrintStage::LayingOut, next.row, RowCount());
  }
  starts_ = std::move(starts);
  return static_cast<int>(starts_.size());
}

ListDocument::Start ListDocument::FillPage(Start start, QPainter *painter) const {
  const double top = HeadHeight();
  const int room = std::max(1, static_cast<int>((BodyBottom() - top) / LineHeight()));
  int used = 0;
  Start at = start;
  for (; at.row < RowCount(); ++at.row, at.line = 0) {
    const Lines lines = RowLines(at.row);
    const int height = Height(lines);
    const int left = height - at.line;
    if (left > room - used && used > 0 && height <= room) return at;
    for (; at.line < height && used < room; ++at.line, ++used) {
      if (painter) DrawLine(*painter, lines, at.line, top + used * LineHeight(), IsClosing(at.row));
    }
    if (at.line < height) return at;
  }
  return at;
}

void ListDocument::DrawLine(QPainter &painter, const Lines &lines, int line, double top, bool bold) const {
  painter.setFont(BodyFont(bold));
  double left = 0;
  for (size_t column = 0; column < widths_.size(); ++column) {
    const QRectF place(left, top, TextWidth(column), LineHeight());
    const Qt::Alignment side = list_.columns[column].toTheRight ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextDontClip,
                     lines[column].value(line));
    left += widths_[column];
  }
}

void ListDocument::DrawHead(QPainter &painter, int page) const {
  painter.setPen(Qt::black);
  const QFont heading = PrintFont(headingPrintSize, true);
  painter.setFont(heading);
  double top = 0;
  for (const QString &line : WrappedLines(list_.heading, page_.width(), heading, QFontMetricsF(heading))) {
    painter.drawText(QRectF(0, top, page_.width(), headingPrintSize * 1.3),
                     static_cast<int>(Qt::AlignHCenter | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextDontClip,
                     line);
    top += headingPrintSize * 1.3;
  }
  const Lines captions = CaptionLines();
  for (int line = 0; line < Height(captions); ++line) {
    DrawLine(painter, captions, line, top + gap + line * LineHeight(), true);
  }
  const double rule = HeadHeight() - gap / 2;
  painter.setPen(QPen(Qt::black, 10));
  painter.drawLine(QLineF(0, rule, page_.width(), rule));
  painter.setPen(Qt::black);
  painter.setFont(PrintFont(ordinarySize, false));
  painter.drawText(QRectF(0, page_.height() - ordinarySize * 1.5, page_.width(), ordinarySize * 1.5),
                   static_cast<int>(Qt::AlignHCenter | Qt::AlignVCenter), QStringLiteral("Page: %1").arg(page + 1));
}

void ListDocument::DrawPage(QPainter &painter, int page) {
  DrawHead(painter, page);
  FillPage(starts_[page], &painter);
}

}  // namespace trimlog
