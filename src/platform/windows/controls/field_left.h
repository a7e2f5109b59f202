#pragma once

#include <QEvent>

namespace trimlog {

/// Does this event mean that a person leaves a field, or comes into it? A change to another program's window, or a menu
/// that opens over the field, is neither.
bool IsFieldLeft(const QEvent &event);
bool IsFieldEntered(const QEvent &event);

}  // namespace trimlog
