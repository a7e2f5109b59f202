#include "journal/windows/step_bar.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QWheelEvent>
#include <limits>

namespace trimlog {

StepBar::StepBar(const QString &objectName, const QString &label, QWidget *parent) : QAbstractSlider(parent) {
  setObjectName(objectName);
  setAccessibleName(label);
  setToolTip(label + QStringLiteral(" (+ and -)"));
  setOrientation(Qt::Vertical);
  setRange(std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize StepBar::sizeHint() const {
  const int line = fontMetrics().lineSpacing();
  return {line + line / 2, 2 * (line + 2)};
}

QRect StepBar::RectOf(Half half) const {
  const int middle = height() / 2;
  return half == Half::Upper ? QRect(0, 0, width(), middle) : QRect(0, middle, width(), height() - middle);
}

void StepBar::DrawButton(QPainter &painter, Half half) const {
  QStyleOptionButton option;
  option.initFrom(this);
  option.rect = RectOf(half);
  option.state.setFlag(QStyle::State_Sunken, pressed_ == half);
  option.state.setFlag(QStyle::State_Raised, pressed_ != half);
  style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
  const QPointF middle = QRectF(option.rect).center();
  const double arm = std::min(option.rect.width(), option.rect.height()) * 0.24;
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(QPen(palette().color(group, QPalette::ButtonText), arm / 2.2, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
  if (half == Half::Upper) painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
}

void StepBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawButton(painter, Half::Upper);
  DrawButton(painter, Half::Lower);
}

void StepBar::mousePressEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = RectOf(Half::Upper).contains(event->pos()) ? Half::Upper : Half::Lower;
  update();
  setValue(value() + (pressed_ == Half::Upper ? -1 : 1));
}

void StepBar::mouseReleaseEvent(QMouseEvent *) {
  pressed_ = Half::None;
  update();
}

void StepBar::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Plus:
      return setValue(value() - 1);
    case Qt::Key_Down:
    case Qt::Key_Minus:
      return setValue(value() + 1);
    default:
      event->ignore();
  }
}

// Each step is stored at once: turning the wheel over it is no way to drink.
void StepBar::wheelEvent(QWheelEvent *event) { event->ignore(); }

void StepBar::focusInEvent(QFocusEvent *event) {
  QAbstractSlider::focusInEvent(event);
  update();
}

void StepBar::focusOutEvent(QFocusEvent *event) {
  QAbstractSlider::focusOutEvent(event);
  update();
}

}  // namespace trimlog
