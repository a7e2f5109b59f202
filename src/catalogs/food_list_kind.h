#pragma once

#include <QList>
#include <QString>

#include "platform/grid/grid_source.h"

namespace trimlog {

/// Kinds of row in meals_list.
namespace food_kind {
inline constexpr int hidden = 0;  ///< recipe headers: in no list
inline constexpr int preLoaded = 1;
inline constexpr int myFoods = 2;
inline constexpr int recipe = 3;
}  // namespace food_kind

/// Keys of the lists of foods; a list of one kind of row has that kind as its key.
namespace food_list {
inline constexpr int all = -1;
inline constexpr int ownWithRecipes = -2;
inline constexpr int recent = -3;
}  // namespace food_list

/// One list of foods that a window offers.
struct FoodList {
  int key = food_list::all;
  QString text;
  QList<int> kinds;  ///< of the rows listed; empty: whatever the window shows at all
};

/// What differs between the windows that list and search foods.
struct FoodListKind {
  QList<FoodList> lists;
  QList<int> never;         ///< kinds of row that no list and no search shows
  QList<GridOrder> byName;  ///< the order called "Food Description"
  /// Foods are picked from these lists, not looked after: no row can be changed, a text can be found in the list, and
  /// looking at the recent foods writes nothing.
  bool forPicking = false;

  /// The list with a key; the first one when there is none.
  const FoodList &ListOf(int key) const;
};

/// The catalog itself: what the person may keep, copy and change, and no recipes.
const FoodListKind &SetupFoodLists();
/// What can be picked for a day or, without the recipes, for a recipe: the person's own foods before the pre-loaded
/// ones. In the business edition the own foods are called "Custom", since an administrator keeps them for many.
const FoodListKind &PickedFoodLists(bool recipesOffered, bool businessEdition);

}  // namespace trimlog
