#include "weightlog/windows/fit_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "core/windows/controls/fitting_font.h"

namespace trimlog {

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

void FitLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  if (autoFillBackground()) painter.fillRect(rect(), palette().window());
  if (text().isEmpty()) return;
  painter.setFont(FittingFont(DrawnFont(), text(), width()));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

bool FitLabel::event(QEvent *event) {
  if (event->type() == QEvent::ToolTip &&
      QFontMetrics(FittingFont(DrawnFont(), text(), width())).horizontalAdvance(text()) > width()) {
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

}  // namespace trimlog
