#include "health/net_calories.h"

#include <map>

#include "core/session/session.h"
#include "health/basal_rates.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"

namespace trimlog {

namespace {

using CaloriesByDay = std::map<QDate, double>;

/// The file's saved queries of these sums, narrowed to the person and the days: the queries themselves would add up
/// the whole history for every month shown.
CaloriesByDay SumCalories(const Session &session, const QString &table, const QDate &first, const QDate &last) {
  CaloriesByDay sums;
  Recordset rows = session.Data().OpenRecordset(
      QStringLiteral("SELECT %1.ThisDate, Sum(%1.Calories) AS SumCalories FROM %1 "
                     "WHERE ((%1.IsPlanned=False) AND (%1.PersonID=?) AND (%1.ThisDate Between ? And ?)) "
                     "GROUP BY %1.ThisDate;")
          .arg(table),
      {session.profile.CurrentPersonID.toInt(), first, last}, RecordsetKind::Forward);
  for (; !rows.Eof(); rows.MoveNext()) {
    const Value sum = rows.Field(1);
    if (!sum.isNull()) sums[rows.Field(0).toDate()] = sum.toDouble();
  }
  return sums;
}

std::optional<double> On(const CaloriesByDay &sums, const QDate &date) {
  const auto found = sums.find(date);
  return found == sums.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

std::optional<double> NetCalories(std::optional<double> eaten, std::optional<double> burned, int basal) {
  if (!eaten && !burned) return std::nullopt;
  return eaten.value_or(0) - burned.value_or(0) - basal;
}

std::vector<NetCaloriesDay> ReadNetCalories(const Session &session, const QDate &first, const QDate &last) {
  std::vector<NetCaloriesDay> days;
  if (!first.isValid() || !last.isValid() || first > last) return days;
  const CaloriesByDay eaten = SumCalories(session, QStringLiteral("meals"), first, last);
  const CaloriesByDay burned = SumCalories(session, QStringLiteral("activities"), first, last);
  std::optional<BasalRates> rates;
  if (session.settings.NetCaloriesBMR) rates.emplace(session, first, last);
  for (QDate day = first; day <= last; day = day.addDays(1)) {
    days.push_back({day, On(eaten, day), On(burned, day), rates ? WholeLong(rates->On(day)) : 0});
  }
  return days;
}

}  // namespace trimlog
