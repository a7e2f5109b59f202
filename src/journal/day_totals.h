#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <array>

#include "core/data/nutrients.h"
#include "journal/servings_rule.h"

namespace trimlog {

/// The rows of a meals list as a grid shows them, sorted by date: what the day's totals are taken from, so that an edit
/// not yet saved counts and no row is read again. The journal, the planner and the quick journal each offer one.
class DayRows {
 public:
  virtual ~DayRows() = default;
  virtual int RowCount() const = 0;
  /// The row whose day is totalled; -1 when there is none.
  virtual int CurrentRow() const = 0;
  virtual QDate DateOf(int row) const = 0;
  /// The text that the row's i-th nutrient cell (0 to 9) shows now.
  virtual QString NutText(int row, int position) const = 0;
};

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
CalorieSums ReadCalorieSums(Database &database, const QString &personID, const QDate &date, EntryKind kind);

/// The running sums of the ten shown cells over the rows of one day: from the current row up and down while the date
/// holds; from the first row down when no row is current.
std::array<double, shownNutrients> SumDay(const DayRows &rows, const QDate &date, const QLocale &locale);

/// The texts of the totals row. Percent positions are taken from `sums`, since shares do not add up; positions without
/// daily totals and empty ones stay empty.
ShownCells TotalsRow(const Nutrients &nutrients, const std::array<double, shownNutrients> &day, const CalorieSums &sums,
                     const QLocale &locale);

/// The texts of the targets row: "+" over or "-" under the target and by how much. A position whose total is empty
/// keeps the text of `previous`.
ShownCells TargetsRow(const Nutrients &nutrients, const ShownCells &totals, const ShownCells &previous,
                      const QLocale &locale);

/// True when a shown position is a share of calories, so that the stored sums are needed.
bool ShowsPercentOfCalories(const Nutrients &nutrients);

/// One call for a window: the totals and targets of the current row's day, or of `shownDate` when no row is current.
struct DayTotals {
  ShownCells totals;
  ShownCells targets;
  std::array<double, shownNutrients> sums{};
};
DayTotals UpdateGridTotals(Database &database, const Nutrients &nutrients, const DayRows &rows, const QString &personID,
                           const QDate &shownDate, EntryKind kind, const ShownCells &previousTargets,
                           const QLocale &locale);

}  // namespace trimlog
