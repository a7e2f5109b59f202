#include "weightlog/windows/fit_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace trimlog {

namespace {

constexpr double smallestShare = 0.7;  ///< of the font's size
constexpr double shrinkStep = 0.25;    ///< points

}  // namespace

FitLabel::FitLabel(const QString &name, Qt::Alignment alignment, QWidget *parent) : QLabel(parent) {
  setObjectName(name);
  setAlignment(alignment);
  setTextFormat(Qt::PlainText);
}

void FitLabel::ShowText(const QString &text) {
  if (text != this->text()) setText(text);
}

void FitLabel::ShowColor(const QColor &color) {
  if (palette().color(QPalette::WindowText) == color) return;
  QPalette own;
  own.setColor(QPalette::WindowText, color);
  setPalette(own);
}

void FitLabel::UseFont(const QFont &font) {
  if (ownFont_ && drawn_ == font) return;
  drawn_ = font;
  ownFont_ = true;
  update();
}

QFont FitLabel::FittingFont() const {
  QFont fitting = DrawnFont();
  double size = QFontInfo(fitting).pointSizeF();
  const double least = size * smallestShare;
  // Step by step: widths are rounded to whole pixels and do not shrink in proportion.
  while (size > least && QFontMetrics(fitting).horizontalAdvance(text()) > width()) {
    size = std::max(least, size - shrinkStep);
    fitting.setPointSizeF(size);
  }
  return fitting;
}

void FitLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  if (autoFillBackground()) painter.fillRect(rect(), palette().window());
  if (text().isEmpty()) return;
  painter.setFont(FittingFont());
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

bool FitLabel::event(QEvent *event) {
  if (event->type() == QEvent::ToolTip && QFontMetrics(FittingFont()).horizontalAdvance(text()) > width()) {
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

}  // namespace trimlog
