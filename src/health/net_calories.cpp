#include "health/net_calories.h"

#include "core/session/session.h"
#include "health/all_dates.h"
#include "health/basal_rates.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

std::optional<double> NetCalories(const QString &caloriesEaten, const QString &caloriesBurned, int basal) {
  if (caloriesEaten.isEmpty() && caloriesBurned.isEmpty()) return std::nullopt;
  return Val(caloriesEaten) - Val(caloriesBurned) - basal;
}

std::vector<NetCaloriesDay> ReadNetCalories(const Session &session, const QDate &first, const QDate &last) {
  std::vector<NetCaloriesDay> days;
  if (!first.isValid() || !last.isValid() || first > last) return days;
  const int person = session.profile.CurrentPersonID.toInt();
  FillAllDates(session.Data(), session.profile.CurrentPersonID, first, last);
  // The two sums are those of the file's saved queries of the same names, narrowed to the person and the days in
  // question: the queries themselves would add up the whole history for every month shown.
  const QString statement = QStringLiteral(
      "SELECT temp_alldates.PersonID, temp_alldates.ThisDate, temp_alldates.ThisIndex, "
      "qryCalorieSumActivities.CaloriesBurned, qryCalorieSumMeals.CaloriesEaten "
      "FROM (temp_alldates LEFT JOIN "
      "(SELECT activities.PersonID, activities.ThisDate, Sum(activities.Calories) AS CaloriesBurned FROM activities "
      "WHERE ((activities.IsPlanned=False) AND (activities.PersonID=?) AND (activities.ThisDate Between ? And ?)) "
      "GROUP BY activities.PersonID, activities.ThisDate) AS qryCalorieSumActivities "
      "ON (temp_alldates.PersonID = qryCalorieSumActivities.PersonID) "
      "AND (temp_alldates.ThisDate = qryCalorieSumActivities.ThisDate)) "
      "LEFT JOIN "
      "(SELECT meals.PersonID, meals.ThisDate, Sum(meals.Calories) AS CaloriesEaten FROM meals "
      "WHERE ((meals.IsPlanned=False) AND (meals.PersonID=?) AND (meals.ThisDate Between ? And ?)) "
      "GROUP BY meals.PersonID, meals.ThisDate) AS qryCalorieSumMeals "
      "ON (temp_alldates.PersonID = qryCalorieSumMeals.PersonID) "
      "AND (temp_alldates.ThisDate = qryCalorieSumMeals.ThisDate) "
      "WHERE (((temp_alldates.PersonID)=?)) ORDER BY temp_alldates.ThisIndex;");
  Recordset rows = session.Data().OpenRecordset(statement, {person, first, last, person, first, last, person});
  std::optional<BasalRates> rates;
  if (session.settings.NetCaloriesBMR) rates.emplace(session, first, last);
  for (; !rows.Eof(); rows.MoveNext()) {
    const QDate date = rows.Field(QStringLiteral("ThisDate")).toDate();
    const int basal = rates ? WholeLong(rates->On(date)) : 0;
    days.push_back(
        {date, rows.Integer(QStringLiteral("ThisIndex")),
         NetCalories(rows.Text(QStringLiteral("CaloriesEaten")), rows.Text(QStringLiteral("CaloriesBurned")), basal)});
  }
  return days;
}

}  // namespace trimlog
