#include "core/profiles/person.h"

#include "core/data/data_access.h"
#include "core/profiles/goal.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// Name, goal, height, birth date and gender, as both statements below take them.
Params OwnValues(const Person &person) {
  return {WithoutDoubleQuotes(person.PersonName.trimmed()),
          GoalToStore(person.Goal),
          person.HeightFeet,
          person.HeightInches,
          person.BirthDate.isValid() ? Value(person.BirthDate) : Value(),
          person.GenderID};
}

}  // namespace

std::optional<Person> ReadPerson(Session &session, const QString &personID) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT people.* FROM people WHERE (people.PersonID=?);"), {personID.toInt()});
  if (row.Eof()) return std::nullopt;
  Person person;
  person.PersonName = row.Text(QStringLiteral("PersonName"));
  person.Goal = GoalFrom(row.Text(QStringLiteral("Goal")));
  person.HeightFeet = row.Number(QStringLiteral("HeightFeet"));
  person.HeightInches = row.Number(QStringLiteral("HeightInches"));
  person.BirthDate = row.Field(QStringLiteral("BirthDate")).toDate();
  person.GenderID = row.Integer(QStringLiteral("GenderID"));
  person.UserID = row.Text(QStringLiteral("UserID"));
  person.Password = row.Text(QStringLiteral("Password"));
  person.BackColor = static_cast<quint32>(row.Integer(QStringLiteral("BackColor")));
  person.NutTargetID = row.Integer(QStringLiteral("NutTargetID"));
  return person;
}

QString NextPersonID(Session &session) {
  return QString::number(std::max(1, GetNextID(session.Data(), QStringLiteral("people")).toInt()));
}

void InsertPerson(Session &session, const QString &personID, const Person &person) {
  Change change(session);
  session.Data().Execute(
      QStringLiteral(
          "INSERT INTO people ( PersonID, PersonName, Goal, HeightFeet, HeightInches, BirthDate, GenderID, BackColor, "
          "UserID, Password, NutTargetID ) SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, ? AS Expr4, ? AS Expr5, "
          "? AS Expr6, ? AS Expr7, ? AS Expr8, ? AS Expr9, ? AS Expr10, ? AS Expr11;"),
      Params{personID.toInt()} + OwnValues(person) +
          Params{static_cast<int>(person.BackColor), person.UserID, person.Password, person.NutTargetID});
  change.Announce({.table = Table::People, .keys = {personID.toInt()}});
  change.Commit();
}

void UpdatePerson(Session &session, const QString &personID, const Person &person) {
  Change change(session);
  session.Data().Execute(
      QStringLiteral("UPDATE people SET people.PersonName=?, people.Goal=?, people.HeightFeet=?, "
                     "people.HeightInches=?, people.BirthDate=?, people.GenderID=? WHERE (((people.PersonID)=?));"),
      OwnValues(person) + Params{personID.toInt()});
  change.Announce({.table = Table::People, .keys = {personID.toInt()}});
  change.Commit();
}

QString AddPerson(Session &session, const Person &person) {
  Change change(session);
  const QString personID = NextPersonID(session);
  InsertPerson(session, personID, person);
  change.Commit();
  return personID;
}

}  // namespace trimlog
