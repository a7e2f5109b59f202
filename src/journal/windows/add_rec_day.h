#pragma once

#include <QDate>
#include <QString>
#include <functional>

class QGridLayout;
class QWidget;

namespace trimlog {

class DateField;
class Session;

// What the add dialog's pages for records of a day have in common: one record a day.

/// The row with the day and its calendar button: txtAddRecDate3, cmdAddRecDate3 for kind 3. `isFixed` lets nobody
/// change it.
DateField *AddDayField(Session &session, QGridLayout *form, int kind, const QDate &proposed, bool isFixed,
                       QWidget *page);

struct DayCheck {
  QString invalidDate;  ///< what is told when the text is no date
  QString existsTitle;  ///< what is told when the day has a record
  QString existsText;
  std::function<bool(const QDate &date)> exists;
};
/// True when the day can take a record. Otherwise the box was shown and the field has the focus.
bool CheckDay(Session &session, DateField &field, const DayCheck &check);

/// Runs the checks and the storing of a page; a failure gets its box and its line in the log. False when either kept
/// the dialog open.
bool GuardedAddRec(Session &session, int kind, const std::function<bool()> &checkAndStore);

}  // namespace trimlog
