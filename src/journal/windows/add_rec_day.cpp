#include "journal/windows/add_rec_day.h"

#include <QAbstractButton>
#include <QGridLayout>

#include "core/session/failure_guard.h"
#include "core/windows/controls/show_calendar.h"
#include "platform/windows/controls/form_rows.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/date_field.h"

namespace trimlog {

DateField *AddDayField(Session &session, QGridLayout *form, int kind, const QDate &proposed, bool isFixed,
                       QWidget *page) {
  auto *field =
      new DateField(QStringLiteral("txtAddRecDate%1").arg(kind), QStringLiteral("Date"), session.locale, page);
  field->setFixedWidth(FieldWidth(field, 14));
  field->SetDate(proposed);
  QAbstractButton *button = AttachCalendar(session, *field, QStringLiteral("cmdAddRecDate%1").arg(kind));
  field->setEnabled(!isFixed);
  button->setEnabled(!isFixed);
  AddFormRow(form, QStringLiteral("&Date:"), field, {field, button});
  return field;
}

bool CheckDay(Session &session, DateField &field, const DayCheck &check) {
  const auto refuse = [&](const QString &title, const QString &text) {
    session.boxes.Critical(title, text);
    field.setFocus();
    field.selectAll();
    return false;
  };
  const QDate date = field.Date();
  if (!date.isValid()) return refuse(QStringLiteral("Invalid Date"), check.invalidDate);
  if (check.exists(date)) return refuse(check.existsTitle, check.existsText);
  return true;
}

bool GuardedAddRec(Session &session, int kind, const std::function<bool()> &checkAndStore) {
  FailureExit failure{QStringLiteral("frmAddRec"), QStringLiteral("AddRecValidate"),
                      QStringLiteral("Error Adding Record"),
                      QStringLiteral("An error occurred while adding this record.  "), true};
  failure.logMessage = [kind](const QString &description) {
    return QStringLiteral("Type of Record was: %1.  Error Description: %2").arg(QString::number(kind), description);
  };
  bool stored = false;
  return Guarded(session, failure, [&] { stored = checkAndStore(); }) && stored;
}

}  // namespace trimlog
