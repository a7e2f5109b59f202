#include "core/profile_list.h"

#include "core/data_access.h"
#include "core/failure_guard.h"
#include "core/profiles.h"
#include "platform/text_format.h"

namespace trimlog {

namespace {

constexpr int longestName = 255;
constexpr double tallest = 300;  // centimetres beside whole metres; feet, metres and inches stay far below
constexpr int oldest = 150;      // years

bool ProfileExists(Session &session, const QString &personID) {
  return !GetDataValue(session.Data(), QStringLiteral("PersonID"), QStringLiteral("people"),
                       QStringLiteral("((people.PersonID)=?)"), {}, {personID.toInt()})
              .isEmpty();
}

QString FirstProfile(Session &session) {
  return GetDataValue(session.Data(), QStringLiteral("Min(people.PersonID) AS FirstID"), QStringLiteral("people"),
                      QStringLiteral("(people.PersonID > 0)"), QStringLiteral("FirstID"));
}

}  // namespace

const QList<Gender> &Genders() {
  static const QList<Gender> genders = {{1, QStringLiteral("Male")}, {2, QStringLiteral("Female")}};
  return genders;
}

QString ProfilesStatement() {
  return QStringLiteral("SELECT people.* FROM people WHERE (people.PersonID > 0) ORDER BY people.PersonName;");
}

bool AskDeleteProfiles(Session &session, int count) {
  const QString text = count == 1
                           ? QStringLiteral(
                                 "When you delete this profile from the list, all data and journal entries for this "
                                 "profile will also be deleted.  Are you sure you want to continue?")
                           : QStringLiteral(
                                 "When you delete these profiles from the list, all data and journal entries for these "
                                 "profiles will also be deleted.  Are you sure you want to continue?");
  return session.boxes.Ask(QStringLiteral("Warning: Delete Profile?"), text, BoxButton::No);
}

bool DeleteProfiles(Session &session, const QStringList &personIDs) {
  const FailureExit failure{QStringLiteral("frmSetup"), QStringLiteral("cmdDeleteProfile_Click"),
                            QStringLiteral("Error Deleting Profile"),
                            QStringLiteral("An error occurred while deleting the profile.  "), true};
  const bool deleted = Guarded(session, failure, [&session, &personIDs] {
    Transaction transaction(session.Data());
    for (const QString &personID : personIDs) {
      session.Data().Execute(
          QStringLiteral("DELETE people.*, people.PersonID FROM people WHERE (((people.PersonID)=?));"),
          {personID.toInt()});
    }
    transaction.Commit();
  });
  if (deleted) session.changes.AnnounceProfiles();
  return deleted;
}

QString ProfileToStandOn(Session &session) {
  const QString first = FirstProfile(session);
  if (!ProfileExists(session, session.LastRealPersonID)) session.LastRealPersonID = first;
  if (ProfileExists(session, session.CurrentPersonID)) return session.CurrentPersonID;
  return first.isEmpty() ? sampleProfile1 : first;
}

bool ConfirmGoal(Session &session, const QString &goal) {
  const std::optional<double> number = ParseNumber(goal);
  if (number && *number > 0) return true;
  return session.boxes.Ask(QStringLiteral("Invalid Goal"),
                           QStringLiteral("The goal that you entered is invalid.  Are you sure that you want to "
                                          "continue?"));
}

QString GoalToStore(const QString &typed, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(typed, locale);
  return number ? PlainText(*number) : typed.trimmed();
}

QString GoalToShow(const QString &stored, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(stored);
  return number ? PlainText(*number).replace(QLatin1Char('.'), locale.decimalPoint()) : stored;
}

QString RefusedName(const QString &name) {
  if (name.trimmed().isEmpty()) return QStringLiteral("Please enter a name for this profile.");
  if (name.size() > longestName) return QStringLiteral("Please enter a name of 255 characters or less.");
  return {};
}

QString RefusedHeight(double height) {
  return height >= 0 && height <= tallest ? QString() : QStringLiteral("Please enter a valid height.");
}

QString RefusedBirthDate(const QDate &date, const QDate &today) {
  if (!date.isValid()) return {};
  if (date > today) return QStringLiteral("Please enter a birth date that is not in the future.");
  if (date < today.addYears(-oldest)) return QStringLiteral("Please enter a valid birth date.");
  return {};
}

}  // namespace trimlog
