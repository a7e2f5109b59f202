#include "health/all_dates.h"

#include "platform/store/recordset.h"

namespace trimlog {

namespace {

bool HoldsAlready(Database &database, int person, const QDate &first, const QDate &last) {
  const Recordset held = database.OpenRecordset(QStringLiteral(
      "SELECT Count(*) AS Days, Min(temp_alldates.ThisDate) AS FirstDate, Max(temp_alldates.ThisDate) AS LastDate, "
      "Min(temp_alldates.PersonID) AS MinPerson, Max(temp_alldates.PersonID) AS MaxPerson FROM temp_alldates;"));
  const qint64 days = held.Integer(QStringLiteral("Days"));
  if (!first.isValid() || !last.isValid() || first > last) return days == 0;
  return days == first.daysTo(last) + 1 && held.Field(QStringLiteral("FirstDate")).toDate() == first &&
         held.Field(QStringLiteral("LastDate")).toDate() == last &&
         held.Integer(QStringLiteral("MinPerson")) == person && held.Integer(QStringLiteral("MaxPerson")) == person;
}

}  // namespace

void FillAllDates(Database &database, const QString &personID, const QDate &first, const QDate &last, bool addRows) {
  const int person = personID.toInt();
  const QDate end = addRows ? last : QDate();
  if (HoldsAlready(database, person, first, end)) return;
  Transaction transaction(database);
  database.Execute(QStringLiteral("DELETE temp_alldates.* FROM temp_alldates;"));
  if (first.isValid() && end.isValid()) {
    int index = 0;
    for (QDate day = first; day <= end; day = day.addDays(1)) {
      database.Execute(
          QStringLiteral("INSERT INTO temp_alldates ( PersonID, ThisIndex, ThisDate ) VALUES ( ?, ?, ? );"),
          {person, ++index, day});
    }
  }
  transaction.Commit();
}

}  // namespace trimlog
