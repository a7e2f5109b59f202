#include "tools/windows/leave_check.h"

#include <QFocusEvent>

namespace trimlog {

LeaveCheck::LeaveCheck(QLineEdit *field, Boxes &boxes, Check check)
    : QObject(field), field_(field), boxes_(boxes), check_(std::move(check)) {
  field->installEventFilter(this);
}

bool LeaveCheck::Insist() {
  if (insisting_) return false;
  if (!entered_ || !field_->isVisible() || !field_->isEnabled()) return true;
  const std::optional<Box> refusal = check_(field_->text());
  if (!refusal) return true;
  insisting_ = true;
  boxes_.Show(*refusal);
  field_->setFocus();
  field_->selectAll();
  insisting_ = false;
  return false;
}

bool LeaveCheck::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::FocusIn) entered_ = true;
  if (event->type() == QEvent::FocusOut) {
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    const bool left = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    if (left && !check_(field_->text())) entered_ = false;
    // A box cannot open while the focus is on its way.
    if (left && entered_ && !insisting_) {
      const auto ask = [this] {
        if (!field_->hasFocus()) Insist();
      };
      QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace trimlog
