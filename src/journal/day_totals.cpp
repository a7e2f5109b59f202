#include "journal/day_totals.h"

#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

std::array<double, shownNutrients> CellsOf(const DayRows &rows, int row, const QLocale &locale) {
  std::array<double, shownNutrients> values{};
  for (int i = 0; i < shownNutrients; ++i) {
    values[static_cast<std::size_t>(i)] = ValueOrZero(rows.NutText(row, i), locale);
  }
  return values;
}

void Add(std::array<double, shownNutrients> &sums, const std::array<double, shownNutrients> &values) {
  for (std::size_t i = 0; i < shownNutrients; ++i) sums[i] += values[i];
}

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

CalorieSums ReadCalorieSums(Database &database, const QString &personID, const QDate &date, EntryKind kind) {
  const QString planned = kind == EntryKind::Planned ? QStringLiteral("True") : QStringLiteral("False");
  const Recordset row = database.OpenRecordset(
      QStringLiteral("SELECT meals.PersonID, Sum(meals.Calories) AS SumCalories, Sum(meals.CalFromFat) AS SumCFF, "
                     "Sum(meals.CalFromProtein) AS SumCFP, Sum(meals.CalFromCarb) AS SumCFC "
                     "From meals Where (((meals.ThisDate) = ") +
      SQLDate(date) + QStringLiteral(") And ((meals.IsPlanned) = ") + planned +
      QStringLiteral(")) GROUP BY meals.PersonID HAVING (((meals.PersonID)=") + personID + QStringLiteral("));"));
  if (row.Eof()) return {};
  return {true, row.Number(QStringLiteral("SumCalories")), row.Number(QStringLiteral("SumCFF")),
          row.Number(QStringLiteral("SumCFP")), row.Number(QStringLiteral("SumCFC"))};
}

std::array<double, shownNutrients> SumDay(const DayRows &rows, const QDate &date, const QLocale &locale) {
  std::array<double, shownNutrients> sums{};
  const int current = rows.CurrentRow();
  if (current >= 0) Add(sums, CellsOf(rows, current, locale));
  for (int row = current - 1; row >= 0 && rows.DateOf(row) == date; --row) Add(sums, CellsOf(rows, row, locale));
  for (int row = current + 1; row < rows.RowCount() && rows.DateOf(row) == date; ++row) {
    Add(sums, CellsOf(rows, row, locale));
  }
  return sums;
}

ShownCells TotalsRow(const Nutrients &nutrients, const std::array<double, shownNutrients> &day, const CalorieSums &sums,
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

DayTotals UpdateGridTotals(Database &database, const Nutrients &nutrients, const DayRows &rows, const QString &personID,
                           const QDate &shownDate, EntryKind kind, const ShownCells &previousTargets,
                           const QLocale &locale) {
  const QDate date = rows.CurrentRow() < 0 ? shownDate : rows.DateOf(rows.CurrentRow());
  DayTotals day;
  day.sums = SumDay(rows, date, locale);
  const CalorieSums sums =
      ShowsPercentOfCalories(nutrients) ? ReadCalorieSums(database, personID, date, kind) : CalorieSums();
  day.totals = TotalsRow(nutrients, day.sums, sums, locale);
  day.targets = TargetsRow(nutrients, day.totals, previousTargets, locale);
  return day;
}

}  // namespace trimlog
