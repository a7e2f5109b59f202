#include "platform/windows/fields/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace trimlog {

WheelGuard::WheelGuard(QObject *watched) : QObject(watched) { watched->installEventFilter(this); }

bool WheelGuard::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Wheel && event->type() != QEvent::Polish) return false;
  auto *box = qobject_cast<QWidget *>(watched);
  while (box && !qobject_cast<QComboBox *>(box) && !qobject_cast<QAbstractSpinBox *>(box)) {
    box = box->isWindow() ? nullptr : box->parentWidget();
  }
  if (!box) return false;
  if (event->type() == QEvent::Polish) {
    if (box->focusPolicy() == Qt::WheelFocus)
      box->setFocusPolicy(Qt::StrongFocus);  // or the wheel itself would focus it
    return false;
  }
  if (box->hasFocus()) return false;
  event->ignore();  // goes on to the box's parent
  return true;
}

}  // namespace trimlog
