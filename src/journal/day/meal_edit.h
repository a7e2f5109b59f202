#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "journal/food_values.h"

namespace trimlog {

class GridRowEdit;
class Session;

/// The nutrients of a listed food per serving; nothing when there is none with that key.
std::optional<FoodValues> ReadFoodValues(const Session &session, int mealID);

/// What follows in an entry's row from a cell that was changed: other servings scale the shown nutrients where the
/// setting ConfirmMealsUpdates wants it (`ask` is asked where it says so), another food gives its own. An entry whose
/// food is gone keeps its nutrients. Throws overflow for a value that no number can hold; the row's other cells are
/// then as they were.
void FollowMealCell(const Session &session, GridRowEdit &row, const QString &column, const std::function<bool()> &ask);

}  // namespace trimlog
