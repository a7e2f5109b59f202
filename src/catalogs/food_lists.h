#pragma once

#include <QList>
#include <QString>

#include "core/session/session.h"
#include "platform/grid/grid_source.h"

namespace trimlog {

/// Kinds of row in meals_list.
namespace food_kind {
inline constexpr int hidden = 0;  ///< recipe headers: in no list
inline constexpr int preLoaded = 1;
inline constexpr int myFoods = 2;
inline constexpr int recipe = 3;
}  // namespace food_kind

/// Keys of the list of food lists, beside the kinds above.
namespace food_list {
inline constexpr int all = -1;
inline constexpr int recent = -3;
}  // namespace food_list

inline constexpr int allFoodGroups = -1;

struct FoodChoice {
  int key = 0;
  QString text;
};
/// "All Food Lists", "Pre-Loaded Foods", "Recent Foods", "My Foods".
const QList<FoodChoice> &FoodListChoices();
/// "All Food Groups", then every group in the order of its key.
QList<FoodChoice> FoodGroupChoices(Session &session);

/// An entry of the sort box; a separator cannot be chosen.
struct FoodSortChoice {
  QString key;  ///< "0" by name, a field, "-" and a field for the highest first; "-1" and "-2" are separators
  QString text;
  bool IsSeparator() const { return key == QStringLiteral("-1") || key == QStringLiteral("-2"); }
};
QList<FoodSortChoice> FoodSortChoices(const Nutrients &nutrients);

/// What the list shows: recipes and hidden rows never.
struct FoodSelection {
  int list = food_list::all;
  int group = allFoodGroups;
  QString sort = QStringLiteral("0");
};

/// The rows of a selection, in order. For the recent foods, FillRecentFoods must have run.
GridSource FoodListSource(const FoodSelection &selection);

/// The foods that the current profile ate or planned in the last 14 days, today included, go into temp_recent_meals.
/// One transaction.
void FillRecentFoods(Session &session);

/// The foods whose description holds every word, in any order, whatever the case. Double quotes in the text are
/// ignored. An empty text finds nothing.
GridSource FoodSearchSource(const QString &text);
QString FoodSearchText(const QString &typed);  ///< as searched: without double quotes, trimmed

/// "Food Description  (12 foods found)".
QString FoodsFoundHeading(int count);
/// "Food Description", blanks, "8791 Foods Displayed". The blanks leave room where the group column is hidden.
QString FoodsDisplayedHeading(int count, bool groupShown);

/// The letter, or the next one behind it, that begins a food of the list: a criterion for each, in the order to try.
QList<GridStatement> AlphabetCriteria(QChar letter);

/// The heading of a printed list.
QString PrintedFoodListTitle(const QString &listName, const QString &groupName);
QString PrintedSearchTitle(const QString &searchText);

}  // namespace trimlog
