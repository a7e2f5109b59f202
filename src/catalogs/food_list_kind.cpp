#include "catalogs/food_list_kind.h"

#include <algorithm>

namespace trimlog {

const FoodList &FoodListKind::ListOf(int key) const {
  const auto found = std::find_if(lists.begin(), lists.end(), [key](const FoodList &list) { return list.key == key; });
  return found == lists.end() ? lists.first() : *found;
}

const FoodListKind &SetupFoodLists() {
  static const FoodListKind kind = {
      .lists = {{food_list::all, QStringLiteral("All Food Lists"), {}},
                {food_kind::preLoaded, QStringLiteral("Pre-Loaded Foods"), {food_kind::preLoaded}},
                {food_list::recent, QStringLiteral("Recent Foods"), {}},
                {food_kind::myFoods, QStringLiteral("My Foods"), {food_kind::myFoods}}},
      .never = {food_kind::hidden, food_kind::recipe},
      .byName = {{QStringLiteral("MealDesc")}},
  };
  return kind;
}

}  // namespace trimlog
