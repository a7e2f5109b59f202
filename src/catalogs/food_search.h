#pragma once

#include <QString>

#include "catalogs/food_list_kind.h"

namespace trimlog {

/// The foods whose description holds every word, in any order, whatever the case. Double quotes in the text are
/// ignored. An empty text finds nothing.
GridSource FoodSearchSource(const FoodListKind &kind, const QString &text);
QString FoodSearchText(const QString &typed);  ///< as searched: without double quotes, trimmed

/// "Food Description  (12 foods found)".
QString FoodsFoundHeading(int count);
/// What an empty result says, before and after a search.
QString NothingFoundHint(const QString &searchText);
/// The heading of a printed search.
QString PrintedSearchTitle(const QString &searchText);

}  // namespace trimlog
