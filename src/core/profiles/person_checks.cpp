#include "core/data/data_access.h"
#include "core/profiles/goal.h"
#include "core/profiles/height.h"
#include "core/profiles/passwords.h"
#include "core/profiles/person.h"

namespace trimlog {

namespace {

constexpr int idLength = 25;
constexpr int oldest = 150;  // years

std::optional<PersonComplaint> CheckSignIn(Session &session, const Person &person) {
  if (person.UserID.trimmed().isEmpty()) {
    return PersonComplaint{PersonField::UserID, QStringLiteral("Profile ID Required"),
                           QStringLiteral("Please enter a Profile ID for this profile.")};
  }
  if (person.UserID.size() > idLength) {
    return PersonComplaint{PersonField::UserID, QStringLiteral("Profile ID Too Long"),
                           QStringLiteral("The Profile ID you have chosen is too long.  Please enter a Profile ID that "
                                          "has 25 characters or less.")};
  }
  if (person.Password.size() > passwordLength) {
    return PersonComplaint{PersonField::Password, QStringLiteral("Password Too Long"),
                           QStringLiteral("The Password you have chosen is too long.  Please enter a Password that has "
                                          "25 characters or less.")};
  }
  const QString holder = GetDataValue(session.Data(), QStringLiteral("PersonID"), QStringLiteral("people"),
                                      QStringLiteral("people.UserID=?"), {}, {person.UserID});
  if (holder.isEmpty()) return std::nullopt;
  return PersonComplaint{PersonField::UserID, QStringLiteral("Profile ID Already Exists"),
                         QStringLiteral("The Profile ID you have chosen already exists.  Please choose a different "
                                        "Profile ID.")};
}

}  // namespace

QString RefusedBirthDate(const QDate &date, const QDate &today) {
  if (!date.isValid()) return {};
  if (date > today) return QStringLiteral("Please enter a birth date that is not in the future.");
  return date < today.addYears(-oldest) ? QStringLiteral("Please enter a valid birth date.") : QString();
}

std::optional<PersonComplaint> CheckBody(const Person &person, int UomID, const QDate &today) {
  const PersonComplaint possible[] = {
      {PersonField::Goal, QStringLiteral("Invalid Goal"), RefusedGoal(person.Goal.value_or(0))},
      {person.HeightInches < 0 ? PersonField::HeightInches : PersonField::HeightFeet, QStringLiteral("Invalid Height"),
       RefusedHeight(person.HeightFeet, person.HeightInches, UomID)},
      {PersonField::BirthDate, QStringLiteral("Invalid Birth Date"), RefusedBirthDate(person.BirthDate, today)},
  };
  for (const PersonComplaint &complaint : possible) {
    if (!complaint.text.isEmpty()) return complaint;
  }
  return std::nullopt;
}

std::optional<PersonComplaint> CheckNewPerson(Session &session, const Person &person) {
  if (person.PersonName.trimmed().isEmpty()) {
    return PersonComplaint{PersonField::PersonName, QStringLiteral("Name Required"),
                           QStringLiteral("Please enter a name for this profile.")};
  }
  if (const auto complaint = CheckBody(person, session.settings.UomID, session.Today())) return complaint;
  return session.edition.BizEd ? CheckSignIn(session, person) : std::nullopt;
}

}  // namespace trimlog
