#pragma once

#include <QWidget>
#include <optional>

#include "journal/day/meal_texts.h"
#include "journal/day_totals.h"
#include "journal/windows/journal_page.h"

namespace trimlog {

class BoundGrid;
class NetCaloriesLine;
class TotalsStrip;

/// What stands below the list of meals: the day's totals under their columns, how far they are from the targets, and
/// the net calories in words. What the window's kind does not have is not made.
class MealTotals : public QWidget {
  Q_OBJECT
 public:
  MealTotals(const JournalParts &parts, BoundGrid &grid, QWidget *parent);

  /// The figures of the day that the grid is on, from its cells as they stand.
  void Update();
  /// Other columns, another view: figures stand under new places.
  void Arrange();
  /// What was burned, weighed or set otherwise has changed: it is read again with the next update.
  void ForgetDay() { day_.reset(); }

  MealsClosing Closing() const;

 private:
  QString NetCalories(const NutrientSums &sums);

  const JournalParts parts_;
  BoundGrid &grid_;
  TotalsStrip *grdMealTotals;
  TotalsStrip *grdMealTargets = nullptr;
  NetCaloriesLine *netCalories_ = nullptr;
  ShownCells totals_;
  ShownCells targets_;
  QDate date_;                         ///< of the totals
  std::optional<NetCaloriesDay> day_;  ///< as stored, read once for a day
};

}  // namespace trimlog
