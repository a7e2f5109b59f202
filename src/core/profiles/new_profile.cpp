#include "core/profiles/new_profile.h"

#include "core/data/data_access.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/profile_list.h"
#include "core/session/change.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr int idLength = 25;
constexpr int referenceTargets = 1;

std::optional<NewProfileComplaint> CheckSignIn(Session &session, const NewProfile &profile) {
  if (profile.UserID.trimmed().isEmpty()) {
    return NewProfileComplaint{NewProfileField::UserID, QStringLiteral("Profile ID Required"),
                               QStringLiteral("Please enter a Profile ID for this profile.")};
  }
  if (profile.UserID.size() > idLength) {
    return NewProfileComplaint{NewProfileField::UserID, QStringLiteral("Profile ID Too Long"),
                               QStringLiteral("The Profile ID you have chosen is too long.  Please enter a Profile ID "
                                              "that has 25 characters or less.")};
  }
  if (profile.Password.size() > idLength) {
    return NewProfileComplaint{NewProfileField::Password, QStringLiteral("Password Too Long"),
                               QStringLiteral("The Password you have chosen is too long.  Please enter a Password that "
                                              "has 25 characters or less.")};
  }
  const QString holder = GetDataValue(session.Data(), QStringLiteral("PersonID"), QStringLiteral("people"),
                                      QStringLiteral("people.UserID=?"), {}, {profile.UserID});
  if (!holder.isEmpty()) {
    return NewProfileComplaint{NewProfileField::UserID, QStringLiteral("Profile ID Already Exists"),
                               QStringLiteral("The Profile ID you have chosen already exists.  Please choose a "
                                              "different Profile ID.")};
  }
  return std::nullopt;
}

std::optional<NewProfileComplaint> CheckBody(Session &session, const NewProfile &profile) {
  const auto height = [](NewProfileField field, double value) {
    return NewProfileComplaint{field, QStringLiteral("Invalid Height"), RefusedHeight(value)};
  };
  for (const NewProfileComplaint &complaint :
       {height(NewProfileField::HeightFeet, profile.HeightFeet),
        height(NewProfileField::HeightInches, profile.HeightInches),
        NewProfileComplaint{NewProfileField::BirthDate, QStringLiteral("Invalid Birth Date"),
                            RefusedBirthDate(profile.BirthDate, session.Today())}}) {
    if (!complaint.text.isEmpty()) return complaint;
  }
  return std::nullopt;
}

}  // namespace

std::optional<NewProfileComplaint> CheckNewProfile(Session &session, const NewProfile &profile) {
  if (profile.PersonName.trimmed().isEmpty()) {
    return NewProfileComplaint{NewProfileField::PersonName, QStringLiteral("Name Required"),
                               QStringLiteral("Please enter a name for this profile.")};
  }
  if (const auto complaint = CheckBody(session, profile)) return complaint;
  return session.edition.BizEd ? CheckSignIn(session, profile) : std::nullopt;
}

QString AddNewProfile(Session &session, const NewProfile &profile) {
  Change change(session);
  const QString personID = GetNextID(session.Data(), QStringLiteral("people"));
  const std::optional<double> goal = ParseNumber(profile.goal, session.locale);
  session.Data().Execute(
      QStringLiteral(
          "INSERT INTO people ( PersonID, PersonName, Goal, HeightFeet, HeightInches, GenderID, BirthDate, "
          "Password, BackColor, UserID, NutTargetID ) SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, ? AS Expr4, "
          "? AS Expr5, ? AS Expr6, ? AS Expr7, ? AS Expr8, ? AS Expr9, ? AS Expr10, ? AS Expr11;"),
      {personID.toInt(), WithoutDoubleQuotes(profile.PersonName.trimmed()), goal ? PlainText(*goal) : QString(),
       profile.HeightFeet, profile.HeightInches, profile.GenderID,
       profile.BirthDate.isValid() ? Value(profile.BirthDate) : Value(), WithoutDoubleQuotes(profile.Password),
       static_cast<int>(DefaultBackColor(session)), WithoutDoubleQuotes(profile.UserID), referenceTargets});
  change.Announce({.table = Table::People, .keys = {personID.toInt()}});
  change.Commit();
  return personID;
}

}  // namespace trimlog
