#include "journal/day/meal_edit.h"

#include "core/session/session.h"
#include "journal/servings_rule.h"
#include "platform/grid/grid_row_edit.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

enum ConfirmUpdates { neverAdjust = 0, alwaysAdjust = 1 };  // of the setting ConfirmMealsUpdates; 2 asks

ShownCells CellsOf(const GridRowEdit &row, const Nutrients &nutrients) {
  ShownCells cells;
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const int id = nutrients.SelectedNutrients[i].NutrientID;
    if (id == 0) continue;
    const QString &field = Definition(nutrients, id).fieldName;
    cells[i] = Format(row.Get(field).toDouble(), GetNutrientFormat(field));
  }
  return cells;
}

void Adjust(const Session &session, GridRowEdit &row, bool foodChanged) {
  const Nutrients &nutrients = session.nutrients;
  const std::optional<FoodValues> food = ReadFoodValues(session, row.Get(QStringLiteral("MealID")).toInt());
  if (!food) return;
  const double servings = Val(row.Get(QStringLiteral("Amount")).toString());
  const ShownCells cells = CellsOf(row, nutrients);
  const ShownCells adjusted = AdjustNutrientValues(nutrients, *food, cells, servings, foodChanged, QLocale::c());
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    if (adjusted[i] == cells[i]) continue;
    const int id = nutrients.SelectedNutrients[i].NutrientID;
    row.Set(Definition(nutrients, id).fieldName, Val(adjusted[i]));
  }
}

}  // namespace

std::optional<FoodValues> ReadFoodValues(const Session &session, int mealID) {
  const Recordset food = session.Data().OpenRecordset(
      QStringLiteral("SELECT meals_list.* FROM meals_list WHERE ((meals_list.MealID) = ?);"), {mealID},
      RecordsetKind::Forward);
  if (food.Eof()) return std::nullopt;
  return FoodValues::Read(food, session.nutrients);
}

void FollowMealCell(const Session &session, GridRowEdit &row, const QString &column, const std::function<bool()> &ask) {
  if (column == QStringLiteral("MealID")) return Adjust(session, row, true);
  if (column != QStringLiteral("Amount")) return;
  const int setting = session.settings.ConfirmMealsUpdates;
  if (setting != neverAdjust && (setting == alwaysAdjust || ask())) Adjust(session, row, false);
}

}  // namespace trimlog
