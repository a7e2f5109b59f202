#include "core/data/data_access.h"
#include "core/profiles/profiles.h"
#include "core/session/change.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString adminRow = QStringLiteral("((people.PersonID)=1)");

QString AdminValue(Database &data, const QString &field) {
  return GetDataValue(data, field, QStringLiteral("people"), adminRow);
}

// An ordinary profile stands where the administrator belongs: it moves on, and its data with it.
void MoveFirstProfile(Database &data) {
  const QString nextID = GetNextID(data, QStringLiteral("people"));
  data.Execute(QStringLiteral("UPDATE people SET people.PersonID = ? WHERE (((people.PersonID)=1));"),
               {nextID.toInt()});
}

void InsertAdministrator(Session &session) {
  Database &data = session.Data();
  data.Execute(QStringLiteral(
      "INSERT INTO people ( PersonID, PersonName, GenderID, Password, UserID ) SELECT 1 AS Expr1, \"Administrator\" AS "
      "Expr2,2 AS Expr5, \"kvr7gates\" AS Expr3, \"admin\" AS Expr4; "));
  data.Execute(
      QStringLiteral("UPDATE people SET people.Goal = \"120\", people.GoalMethodID = 2, people.GoalMethodLbsWeek = 2, "
                     "people.GoalMethodDate = #1/1/2002#, people.BirthDate = #1/1/1970#, people.HeightFeet = 5, "
                     "people.HeightInches = 3, people.BackColor = 16769216 WHERE (((people.PersonID)=1));"));
  data.Execute(QStringLiteral("UPDATE people SET people.UserID = \"sample1\" WHERE (((people.PersonID)=-2));"));
  data.Execute(QStringLiteral("UPDATE people SET people.UserID = \"sample2\" WHERE (((people.PersonID)=-1));"));
  data.Execute(QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT 1 AS Expr1, "
                              "? AS Expr2, 120 AS Expr3, 0 AS Expr4;"),
               {session.Today()});
}

}  // namespace

void CreateAdminProfile(Session &session) {
  if (!session.edition.BizEd) return;
  Database &data = session.Data();
  if (!AdminValue(data, QStringLiteral("UserID")).isEmpty()) return;
  Change change(session);
  if (!AdminValue(data, QStringLiteral("PersonName")).isEmpty()) MoveFirstProfile(data);
  InsertAdministrator(session);
  change.Announce({.table = Table::People});
  change.Announce({.table = Table::WeightLoss});
  change.Commit();
}

}  // namespace trimlog
