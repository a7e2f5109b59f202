#include "journal/day/water.h"

#include <optional>

#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// More than anybody drinks; a typing slip beyond it must not lose its digits in the column.
constexpr double mostGlasses = 9999;

std::optional<WaterRecord> WaterOn(Session &session, const QDate &date) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT other_daily_data.RecordID, other_daily_data.WaterConsumed FROM other_daily_data WHERE "
                     "((PersonID=?) AND (ThisDate = ?)) ORDER BY other_daily_data.RecordID;"),
      {session.profile.CurrentPersonID.toInt(), date});
  if (row.Eof()) return std::nullopt;
  return WaterRecord{row.Integer(QStringLiteral("RecordID")), row.Number(QStringLiteral("WaterConsumed")), date};
}

}  // namespace

WaterRecord LoadWaterRecord(Session &session, const QDate &date, const QDate &dateShown) {
  std::optional<WaterRecord> found = WaterOn(session, date);
  if (!found && date != dateShown) found = WaterOn(session, dateShown);
  if (found) return *found;

  Transaction transaction(session.Data());
  const WaterRecord empty{
      GetNextID(session.Data(), QStringLiteral("other_daily_data"), session.profile.CurrentPersonID).toInt(), 0,
      dateShown};
  session.Data().Execute(QStringLiteral("INSERT INTO other_daily_data ( PersonID, RecordID, ThisDate, WaterConsumed ) "
                                        "SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, 0 AS Expr4;"),
                         {session.profile.CurrentPersonID.toInt(), empty.RecordID, dateShown});
  transaction.Commit();
  return empty;
}

void SaveWater(Session &session, const WaterRecord &record, const QDate &date) {
  Change change(session);
  session.Data().Execute(QStringLiteral("UPDATE other_daily_data SET other_daily_data.WaterConsumed = ? "
                                        "WHERE ((other_daily_data.PersonID=?) AND (other_daily_data.RecordID=?));"),
                         {record.WaterConsumed, session.profile.CurrentPersonID.toInt(), record.RecordID});
  change.Announce({.table = Table::OtherDailyData,
                   .keys = {record.RecordID},
                   .personID = session.profile.CurrentPersonID,
                   .date = date});
  change.Commit();
}

double GlassesOf(const QString &text, const QLocale &locale) {
  return std::clamp(ValueOrZero(text, locale), 0.0, mostGlasses);
}

double StepWater(const QString &text, bool more, const QLocale &locale) {
  return std::clamp(GlassesOf(text, locale) + (more ? 1 : -1), 0.0, mostGlasses);
}

}  // namespace trimlog
