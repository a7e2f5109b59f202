#include "platform/windows/printing/text_document.h"

#include <QPainter>

#include "platform/windows/printing/printed_lines.h"

namespace trimlog {

namespace {

constexpr double bodySize = 200;  // 10 points
constexpr double headLine = headingPrintSize * 1.3;
constexpr double bodyLine = bodySize * 1.25;
constexpr int textFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip;

}  // namespace

QStringList TextDocument::HeadLines(int page) const {
  const QString title = page == 0 ? text_.title : text_.title + QStringLiteral(" (Continued)");
  const QFont font = PrintFont(headingPrintSize, true);
  return WrappedLines(title, page_.width(), font, QFontMetricsF(font));
}

int TextDocument::Room(int page) const {
  const double head = static_cast<double>(HeadLines(page).size()) * headLine + bodyLine;
  return std::max(1, static_cast<int>((page_.height() - head) / bodyLine));
}

int TextDocument::LayOut(const QSizeF &page) {
  page_ = page;
  const QFont font = PrintFont(bodySize, false);
  QString body = text_.paragraphs.join(QStringLiteral("\n\n"));
  body.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
  lines_ = WrappedLines(body, page.width(), font, QFontMetricsF(font));
  starts_ = {0};
  for (int next = Room(0); next < lines_.size(); next += Room(static_cast<int>(starts_.size()) - 1)) {
    starts_.append(next);
    Reached(PrintStage::LayingOut, next, static_cast<int>(lines_.size()));
  }
  return static_cast<int>(starts_.size());
}

void TextDocument::DrawPage(QPainter &painter, int page) {
  painter.setPen(Qt::black);
  painter.setFont(PrintFont(headingPrintSize, true));
  double top = 0;
  for (const QString &line : HeadLines(page)) {
    painter.drawText(QRectF(0, top, page_.width(), headLine), textFlags, line);
    top += headLine;
  }
  top += bodyLine;
  painter.setFont(PrintFont(bodySize, false));
  const int end = page + 1 < starts_.size() ? starts_[page + 1] : static_cast<int>(lines_.size());
  for (int line = starts_[page]; line < end; ++line, top += bodyLine) {
    painter.drawText(QRectF(0, top, page_.width(), bodyLine), textFlags, lines_[line]);
  }
}

}  // namespace trimlog
