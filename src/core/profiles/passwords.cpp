#include "core/profiles/passwords.h"

#include "core/data/data_access.h"
#include "core/session/change.h"
#include "core/session/failure_guard.h"

namespace trimlog {

namespace {

PasswordOutcome Judge(const PasswordEntry &entry, const QString &stored) {
  if (!PasswordMatches(entry.old, stored)) return PasswordOutcome::WrongOld;
  if (!PasswordMatches(entry.changed, entry.confirmed)) return PasswordOutcome::NotConfirmed;
  if (PasswordMatches(entry.changed, entry.old)) return PasswordOutcome::SameAsOld;
  return PasswordOutcome::Changed;
}

void ShowRefusal(Boxes &boxes, PasswordOutcome outcome) {
  switch (outcome) {
    case PasswordOutcome::WrongOld:
      boxes.Critical(
          QStringLiteral("Incorrect Password"),
          QStringLiteral("The Old Password that you typed is incorrect.  Please type your Old password again "
                         "or hit <Cancel> to close this window."));
      break;
    case PasswordOutcome::NotConfirmed:
      boxes.Critical(
          QStringLiteral("New Passwords Do Not Match"),
          QStringLiteral("The New and Confirmed passwords do not match.  Please type your New password again "
                         "in the fields provided."));
      break;
    case PasswordOutcome::SameAsOld:
      boxes.Critical(QStringLiteral("Passwords Cannot Match"),
                     QStringLiteral("The Old and New passwords are the same.  Please type your New password again in "
                                    "the fields provided."));
      break;
    default:
      break;
  }
}

void ShowSuccess(Boxes &boxes, bool removed) {
  if (removed) {
    boxes.Inform(
        QStringLiteral("Password Removed"),
        QStringLiteral("Your password was removed successfully.  You will no longer be prompted for a password "
                       "when loading this profile."));
  } else {
    boxes.Inform(QStringLiteral("Password Changed"),
                 QStringLiteral("Your password has been changed.  Please keep a record of this password in a secure "
                                "place.  You will be unable to view or edit your information without the password."));
  }
}

}  // namespace

QString StoredPassword(Session &session, const QString &personID) {
  return GetDataValue(session.Data(), QStringLiteral("Password"), QStringLiteral("people"),
                      QStringLiteral("((people.PersonID)=?)"), {}, {personID.toInt()});
}

bool PasswordMatches(const QString &typed, const QString &stored) { return typed.toLower() == stored.toLower(); }

bool AcceptPassword(Session &session, const QString &personID, const QString &typed) {
  if (PasswordMatches(typed, StoredPassword(session, personID))) return true;
  session.boxes.Critical(QStringLiteral("Invalid Password"),
                         QStringLiteral("The password that you entered is invalid.  Please try again."));
  return false;
}

PasswordOutcome ChangePassword(Session &session, const QString &personID, const PasswordEntry &entry) {
  const PasswordOutcome outcome = Judge(entry, StoredPassword(session, personID));
  if (outcome != PasswordOutcome::Changed) {
    ShowRefusal(session.boxes, outcome);
    return outcome;
  }
  const FailureExit failure{QStringLiteral("frmEditPassword"), QStringLiteral("cmdOK_Click"),
                            QStringLiteral("Error Changing Password"),
                            QStringLiteral("An error occurred while changing your password.  "), true};
  const bool stored = Guarded(session, failure, [&session, &personID, &entry] {
    Change change(session);
    session.Data().Execute(QStringLiteral("UPDATE people SET people.Password = ? WHERE (((people.PersonID)=?));"),
                           {entry.changed, personID.toInt()});
    change.Announce({.table = Table::People, .keys = {personID.toInt()}});
    change.Commit();
  });
  if (!stored) return PasswordOutcome::Failed;
  ShowSuccess(session.boxes, entry.changed.isEmpty());
  return PasswordOutcome::Changed;
}

}  // namespace trimlog
