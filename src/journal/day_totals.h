#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <array>

#include "core/data/nutrients.h"
#include "journal/day_walk.h"
#include "journal/servings_rule.h"

namespace trimlog {

class Session;

/// Which entries count: those eaten or those planned.
enum class EntryKind { Eaten, Planned };

/// Stored sums of one day, for the shares of calories. No rows read as no sums.
struct CalorieSums {
  bool found = false;
  double calories = 0;
  double fromFat = 0;
  double fromProtein = 0;
  double fromCarb = 0;
};
/// Those of the session's profile.
CalorieSums ReadCalorieSums(const Session &session, const QDate &date, EntryKind entries);

/// The running sums of the ten shown columns, Nut1 to Nut10, over the rows of one day.
using NutrientSums = std::array<double, shownNutrients>;
NutrientSums SumMeals(const DayRows &rows, const QDate &date, const QLocale &locale);

/// The texts of the totals row. Percent positions are taken from `sums`, since shares do not add up; positions without
/// daily totals and empty ones stay empty.
ShownCells TotalsRow(const Nutrients &nutrients, const NutrientSums &day, const CalorieSums &sums,
                     const QLocale &locale);

/// The texts of the targets row: "+" over or "-" under the target and by how much. A position whose total is empty
/// keeps the text of `previous`.
ShownCells TargetsRow(const Nutrients &nutrients, const ShownCells &totals, const ShownCells &previous,
                      const QLocale &locale);

/// True when a shown position is a share of calories, so that the stored sums are needed.
bool ShowsPercentOfCalories(const Nutrients &nutrients);

/// The meals of a day as a window shows them.
struct MealsOfDay {
  const DayRows &rows;
  QDate shownDate;  ///< whose day is meant while no row is current
  EntryKind entries = EntryKind::Eaten;
  ShownCells previousTargets;  ///< the targets row as it stands
};

/// One call for a window: the totals and targets of the current row's day.
struct DayTotals {
  ShownCells totals;
  ShownCells targets;
  NutrientSums sums{};
};
DayTotals UpdateGridTotals(const Session &session, const MealsOfDay &meals);

}  // namespace trimlog
