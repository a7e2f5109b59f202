#include "platform/windows/controls/field_left.h"

#include <QFocusEvent>

namespace trimlog {

namespace {

bool ByThePerson(const QEvent &event) {
  const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

}  // namespace

bool IsFieldLeft(const QEvent &event) { return event.type() == QEvent::FocusOut && ByThePerson(event); }

bool IsFieldEntered(const QEvent &event) { return event.type() == QEvent::FocusIn && ByThePerson(event); }

}  // namespace trimlog
