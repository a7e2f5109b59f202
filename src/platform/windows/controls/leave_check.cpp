#include "platform/windows/controls/leave_check.h"

#include "platform/windows/controls/field_left.h"

namespace trimlog {

LeaveCheck::LeaveCheck(QLineEdit *field, Boxes &boxes, Check check)
    : QObject(field), field_(field), boxes_(boxes), check_(std::move(check)) {
  field->installEventFilter(this);
}

bool LeaveCheck::Insist() { return (field_->isModified() || insisting_) ? InsistOnAny() : true; }

bool LeaveCheck::InsistOnAny() {
  if (insisting_) return false;
  if (!field_->isVisible() || !field_->isEnabled()) return true;
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
  // A field that is going down loses the focus as a plain widget: nothing of it can be asked any more.
  const auto *field = qobject_cast<QLineEdit *>(watched);
  if (field && IsFieldLeft(*event) && field->isModified() && !insisting_ && check_(field->text())) {
    // A box cannot open while the focus is on its way.
    const auto ask = [this] {
      if (!field_->hasFocus()) Insist();
    };
    QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace trimlog
