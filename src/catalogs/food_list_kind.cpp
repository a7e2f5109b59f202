#include "catalogs/food_list_kind.h"

#include <algorithm>

namespace trimlog {

namespace {

FoodListKind MakePickedFoodLists(bool recipesOffered, const QString &own) {
  FoodListKind kind = {
      .lists = {{food_list::all, QStringLiteral("All Food Lists"), {}},
                {food_kind::preLoaded, QStringLiteral("Pre-Loaded Foods"), {food_kind::preLoaded}},
                {food_list::recent, QStringLiteral("Recent Foods"), {}}},
      .never = {food_kind::hidden},
      .byName = {{QStringLiteral("RecordTypeID"), true}, {QStringLiteral("MealDesc")}},
      .forPicking = true,
  };
  const FoodList foods = {food_kind::myFoods, own + QStringLiteral(" Foods"), {food_kind::myFoods}};
  if (!recipesOffered) {
    kind.lists.append(foods);
    kind.never.append(food_kind::recipe);
    return kind;
  }
  kind.lists.append(
      {food_list::ownWithRecipes, own + QStringLiteral(" Foods + Recipes"), {food_kind::myFoods, food_kind::recipe}});
  kind.lists.append(foods);
  kind.lists.append({food_kind::recipe, own + QStringLiteral(" Recipes"), {food_kind::recipe}});
  return kind;
}

}  // namespace

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

const FoodListKind &PickedFoodLists(bool recipesOffered, bool businessEdition) {
  static const QString my = QStringLiteral("My"), custom = QStringLiteral("Custom");
  static const FoodListKind kinds[2][2] = {{MakePickedFoodLists(false, my), MakePickedFoodLists(false, custom)},
                                           {MakePickedFoodLists(true, my), MakePickedFoodLists(true, custom)}};
  return kinds[recipesOffered ? 1 : 0][businessEdition ? 1 : 0];
}

}  // namespace trimlog
