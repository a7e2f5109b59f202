#include "platform/windows/fields/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace trimlog {

void WheelGuard::Guard(QWidget *widget) {
  if (!qobject_cast<QComboBox *>(widget) && !qobject_cast<QAbstractSpinBox *>(widget)) return;
  // Or the wheel itself would focus it.
  if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
  widget->installEventFilter(this);
}

// What stands in a box, an editor of its text, hands the wheel on to it.
bool WheelGuard::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus()) return false;
  event->ignore();  // goes on to the box's parent
  return true;
}

}  // namespace trimlog
