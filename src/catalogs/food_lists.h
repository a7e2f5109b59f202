#pragma once

#include <QList>
#include <QString>

#include "catalogs/food_catalog.h"
#include "catalogs/food_list_kind.h"
#include "core/session/session.h"

namespace trimlog {

inline constexpr int allFoodGroups = -1;

struct FoodGroup {
  int key = allFoodGroups;
  QString text;
};
/// Every group of foods, in the order of its key.
QList<FoodGroup> FoodGroups(Session &session);
/// "All Food Groups", then every group.
QList<FoodGroup> FoodGroupChoices(Session &session);

inline const QString byFoodName = QStringLiteral("0");

/// An entry of the sort box; a separator cannot be chosen.
struct FoodSortChoice {
  QString key;  ///< byFoodName, a field, "-" and a field for the highest first; "-1" and "-2" are separators
  QString text;
  bool IsSeparator() const { return key == QStringLiteral("-1") || key == QStringLiteral("-2"); }
};
QList<FoodSortChoice> FoodSortChoices(const Nutrients &nutrients);

/// What the list shows.
struct FoodSelection {
  int list = food_list::all;
  int group = allFoodGroups;
  QString sort = byFoodName;
};

/// What a picker of foods opens with: the list and the order of last time, as far as they are there.
FoodSelection FirstSelection(const FoodListKind &kind, const Session &session);

/// All rows that a window may show, by name.
GridSource ListedFoods(const FoodListKind &kind);
/// The rows of a selection, in order. For the recent foods, FillRecentFoods must have run.
GridSource FoodListSource(const FoodListKind &kind, const FoodSelection &selection);
/// The same, with what was eaten lately looked up where the selection asks for it.
GridSource PrepareFoodList(Session &session, const FoodListKind &kind, const FoodSelection &selection);
/// The key of the order in which the rows of a source stand: one of the sort box where it offers that order.
QString SortKeyOf(const FoodListKind &kind, const GridSource &source);
/// The selection that shows a food, as near to the present one as can be.
FoodSelection SelectionHolding(const FoodRecord &food, const FoodSelection &present);

/// The foods that the current profile ate or planned in the last 14 days, today included, go into temp_recent_meals.
/// One transaction.
void FillRecentFoods(Session &session);

/// "Food Description", blanks, "8791 Foods Displayed". The blanks leave room where the group column is hidden.
QString FoodsDisplayedHeading(int count, bool groupShown);

/// The letter, or the next one behind it, that begins a food of the list: a criterion for each, in the order to try.
/// Where a list of all foods begins with the person's own, the jump goes to the pre-loaded ones behind them.
QList<GridStatement> AlphabetCriteria(const FoodListKind &kind, int list, QChar letter);

/// What a list without foods says.
QString EmptyListHint(const FoodListKind &kind, const FoodSelection &selection);
/// The heading of a printed list.
QString PrintedFoodListTitle(const QString &listName, const QString &groupName);

}  // namespace trimlog
