#include "core/profiles/goal.h"

#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

QString StoredGoal(const Session &session) {
  const Recordset people =
      session.Data().OpenRecordset(QStringLiteral("SELECT people.Goal FROM people WHERE (people.PersonID=?);"),
                                   {session.profile.CurrentPersonID.toInt()}, RecordsetKind::Forward);
  return people.Eof() ? QString() : people.Text(QStringLiteral("Goal"));
}

}  // namespace

std::optional<double> GoalFrom(const QString &stored) {
  return ParseNumber(QString(stored).replace(QLatin1Char(','), QLatin1Char('.')));
}

QString GoalToShow(const QString &stored, const QLocale &locale) {
  const std::optional<double> number = GoalFrom(stored);
  return number ? PlainText(*number).replace(QLatin1Char('.'), locale.decimalPoint()) : stored;
}

QString GoalToStore(const std::optional<double> &goal) { return goal ? PlainText(*goal) : QString(); }

std::optional<double> ReadGoal(const Session &session) { return GoalFrom(StoredGoal(session)); }

QString ReadGoalText(const Session &session) { return GoalToShow(StoredGoal(session), session.locale); }

QString RefusedGoal(double goal) {
  return goal <= heaviestWeight
             ? QString()
             : QStringLiteral("The goal that you entered is invalid.  Please enter a numeric value for your goal.");
}

bool IsGoal(const QString &goal, const QLocale &locale) { return ParseNumber(goal, locale).value_or(0) > 0; }

bool ConfirmGoal(Session &session, const QString &goal) {
  if (IsGoal(goal, session.locale)) return true;
  return session.boxes.Ask(
      QStringLiteral("Invalid Goal"),
      QStringLiteral("The goal that you entered is invalid.  Are you sure that you want to continue?"), BoxButton::No);
}

}  // namespace trimlog
