#include "weightlog/windows/weight_entry.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <optional>

#include "core/session/session.h"
#include "platform/windows/controls/field_left.h"
#include "platform/windows/fields/number_field.h"
#include "weightlog/calendar_model.h"
#include "weightlog/windows/month_grid.h"

namespace trimlog {

namespace {

std::optional<CalendarArrow> ArrowOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return CalendarArrow::Left;
    case Qt::Key_Right:
      return CalendarArrow::Right;
    case Qt::Key_Up:
      return CalendarArrow::Up;
    case Qt::Key_Down:
      return CalendarArrow::Down;
    default:
      return std::nullopt;
  }
}

}  // namespace

WeightEntry::WeightEntry(Session &session, CalendarModel &model, MonthGrid &grid)
    : session_(session), model_(model), grid_(grid) {
  for (int i = 1; i <= calendarCells; ++i) grid_.Field(i)->installEventFilter(this);
}

WeightEntry::~WeightEntry() {
  for (int i = 1; i <= calendarCells; ++i) grid_.Field(i)->removeEventFilter(this);
}

bool WeightEntry::HasFocus() const {
  for (int i = 1; i <= calendarCells; ++i) {
    if (grid_.Field(i)->hasFocus()) return true;
  }
  return false;
}

int WeightEntry::PendingCell() const {
  return entered_ != 0 && grid_.Field(entered_)->text() != model_.EntryText() ? entered_ : 0;
}

EditOutcome WeightEntry::Leave() {
  if (refused_) return EditOutcome::Refused;
  if (PendingCell() == 0) return EditOutcome::Saved;
  QLineEdit *field = grid_.Field(entered_);
  const QString text = field->text();
  const bool valid = model_.ValidateWeight(text);
  if (!valid || !model_.SaveWeight(text)) {
    Refuse(field);
    return valid ? EditOutcome::Failed : EditOutcome::Refused;
  }
  field->setText(model_.EntryText());
  Q_EMIT Saved();
  return EditOutcome::Saved;
}

void WeightEntry::Restore() {
  if (PendingCell() == 0) return;
  grid_.Field(entered_)->setText(model_.EntryText());
  grid_.Field(entered_)->selectAll();
}

void WeightEntry::Refuse(QLineEdit *field) {
  refused_ = true;
  field->setFocus(Qt::OtherFocusReason);
  field->selectAll();
  // A click elsewhere takes the focus and the selection away after this: get them back once the click is through.
  QMetaObject::invokeMethod(
      this,
      [this, field] {
        refused_ = false;
        field->setFocus(Qt::OtherFocusReason);
        field->selectAll();
      },
      Qt::QueuedConnection);
}

void WeightEntry::Enter(int i) {
  QLineEdit *field = grid_.Field(i);
  const bool typing = PendingCell() == i;
  const bool was = suspended_;
  suspended_ = true;
  field->setFocus(Qt::OtherFocusReason);
  suspended_ = was;
  entered_ = i;
  model_.EnterCell(i);
  if (!typing) field->setText(model_.EntryText());  // of another month, which is not shown yet
  field->selectAll();
  Q_EMIT Entered();
}

bool WeightEntry::eventFilter(QObject *watched, QEvent *event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (const int i = grid_.IndexOf(watched)) return OnKey(i, *static_cast<QKeyEvent *>(event));
      break;
    case QEvent::MouseButtonPress:
      // The cell that is left is checked first: a refused one keeps the focus.
      if (const int i = grid_.IndexOf(watched)) return i != entered_ && !TryLeave();
      break;
    case QEvent::FocusIn:
      if (!suspended_) OnFocusIn(grid_.IndexOf(watched), *static_cast<QFocusEvent *>(event));
      break;
    case QEvent::FocusOut:
      if (!suspended_ && IsFieldLeft(*event)) TryLeave();
      break;
    default:
      break;
  }
  return false;
}

void WeightEntry::OnFocusIn(int i, const QFocusEvent &event) {
  if (i == 0) return;
  session_.windows.SuppressReward = false;
  if (entered_ != 0 && (!IsFieldEntered(event) || PendingCell() != 0)) return;
  entered_ = i;
  if (model_.EnterCell(i)) {
    QLineEdit *field = grid_.Field(i);
    field->selectAll();
    // A mouse press sets the cursor after this.
    if (event.reason() == Qt::MouseFocusReason) {
      QMetaObject::invokeMethod(field, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
  }
  Q_EMIT Entered();
}

bool WeightEntry::OnKey(int i, const QKeyEvent &event) {
  QLineEdit *field = grid_.Field(i);
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return !TryLeave();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (TryLeave()) Q_EMIT NextWanted();
      return true;
    case Qt::Key_Escape:
      if (PendingCell() == 0) return false;
      Restore();
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      Q_EMIT MonthWanted(event.key() == Qt::Key_PageUp ? -1 : 1);
      return true;
    default:
      return OnArrow(i, event) || TypeDecimalKey(*field, event, session_.locale);
  }
}

bool WeightEntry::OnArrow(int i, const QKeyEvent &event) {
  const std::optional<CalendarArrow> arrow = ArrowOf(event.key());
  if (!arrow || event.modifiers().testFlag(Qt::ShiftModifier)) return false;
  const int target = ArrowTarget(model_.Month(), i, *arrow);
  if (target == 0) return false;
  if (TryLeave()) grid_.Field(target)->setFocus(Qt::OtherFocusReason);
  return true;
}

}  // namespace trimlog
