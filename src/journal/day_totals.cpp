#include "journal/day_totals.h"

#include "core/session/session.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

double PercentOf(int nutrientID, const CalorieSums &sums) {
  double part = sums.fromCarb;
  if (nutrientID == nutrient_id::calFromFatPct) part = sums.fromFat;
  if (nutrientID == nutrient_id::calFromProteinPct) part = sums.fromProtein;
  return Whole(part / sums.calories * 100);
}

QString TotalText(const Nutrients &nutrients, const SelectedNutrient &position, double sum, const CalorieSums &sums,
                  const QLocale &locale) {
  if (position.NutrientID == 0 || !position.NutTotal) return {};
  if (IsPercentOfCalories(position.NutrientID)) {
    const bool known = sums.found && sums.calories != 0;
    return Format(known ? PercentOf(position.NutrientID, sums) : sum, QStringLiteral("General Number"), locale);
  }
  const QString &field = Definition(nutrients, position.NutrientID).fieldName;
  return Format(sum, GetNutrientFormat(field), locale);
}

}  // namespace

CalorieSums ReadCalorieSums(const Session &session, const QDate &date, EntryKind entries) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT meals.PersonID, Sum(meals.Calories) AS SumCalories, Sum(meals.CalFromFat) AS SumCFF, "
                     "Sum(meals.CalFromProtein) AS SumCFP, Sum(meals.CalFromCarb) AS SumCFC From meals "
                     "Where (((meals.ThisDate) = ?) And ((meals.IsPlanned) = ?)) "
                     "GROUP BY meals.PersonID HAVING (((meals.PersonID)=?));"),
      {date, entries == EntryKind::Planned, session.profile.CurrentPersonID.toInt()});
  if (row.Eof()) return {};
  return {true, row.Number(QStringLiteral("SumCalories")), row.Number(QStringLiteral("SumCFF")),
          row.Number(QStringLiteral("SumCFP")), row.Number(QStringLiteral("SumCFC"))};
}

NutrientSums SumMeals(const DayRows &rows, const QDate &date, const QLocale &locale) {
  QStringList columns;
  for (int position = 1; position <= shownNutrients; ++position) columns.append(QStringLiteral("Nut%1").arg(position));
  const std::vector<double> sums = SumDay(rows, date, columns, locale);
  NutrientSums day{};
  std::copy(sums.begin(), sums.end(), day.begin());
  return day;
}

ShownCells TotalsRow(const Nutrients &nutrients, const NutrientSums &day, const CalorieSums &sums,
                     const QLocale &locale) {
  ShownCells totals;
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    totals[i] = TotalText(nutrients, nutrients.SelectedNutrients[i], day[i], sums, locale);
  }
  return totals;
}

ShownCells TargetsRow(const Nutrients &nutrients, const ShownCells &totals, const ShownCells &previous,
                      const QLocale &locale) {
  ShownCells targets;
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const int id = nutrients.SelectedNutrients[i].NutrientID;
    if (id == 0) continue;
    if (totals[i].isEmpty()) {
      targets[i] = previous[i];
      continue;
    }
    const std::size_t index = static_cast<std::size_t>(id - 1);
    const double target = nutrients.NutrientTargets.at(index);
    if (target == -1) continue;
    const double difference = target - ValueOrZero(totals[i], locale);
    const QString sign = difference < 0 ? QStringLiteral("+") : QStringLiteral("-");
    targets[i] =
        sign + Format(std::abs(difference), GetNutrientFormat(nutrients.NutrientDefs[index].fieldName), locale);
  }
  return targets;
}

bool ShowsPercentOfCalories(const Nutrients &nutrients) {
  return std::any_of(nutrients.SelectedNutrients.begin(), nutrients.SelectedNutrients.end(),
                     [](const SelectedNutrient &position) { return IsPercentOfCalories(position.NutrientID); });
}

DayTotals UpdateGridTotals(const Session &session, const MealsOfDay &meals) {
  const Nutrients &nutrients = session.nutrients;
  const QDate date = DayOf(meals.rows, meals.shownDate);
  const CalorieSums sums =
      ShowsPercentOfCalories(nutrients) ? ReadCalorieSums(session, date, meals.entries) : CalorieSums();
  DayTotals day;
  day.sums = SumMeals(meals.rows, date, session.locale);
  day.totals = TotalsRow(nutrients, day.sums, sums, session.locale);
  day.targets = TargetsRow(nutrients, day.totals, meals.previousTargets, session.locale);
  return day;
}

}  // namespace trimlog
