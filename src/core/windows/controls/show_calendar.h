#pragma once

#include <QString>

#include "core/session/session.h"

class QAbstractButton;
class QLineEdit;

namespace trimlog {

class DateField;

/// Opens the date picker for a text box, on the box's date or, where it holds none, on today. A chosen date is written
/// into the box in the locale's short form, as if it had been typed there and left; the focus returns to the box either
/// way. True when a date was chosen.
bool ShowCalendar(Session &session, QLineEdit &textBox);

/// The small button beside a date field that opens the picker; F4 and Alt+Down in the field do the same. The window
/// puts it into its layout. An existing button is taken when one is given.
QAbstractButton *AttachCalendar(Session &session, DateField &field, const QString &buttonName,
                                QAbstractButton *button = nullptr);

}  // namespace trimlog
