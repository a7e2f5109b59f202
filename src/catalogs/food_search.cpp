#include "catalogs/food_search.h"

#include <QRegularExpression>
#include <algorithm>
#include <optional>

#include "catalogs/food_catalog.h"
#include "catalogs/food_lists.h"

namespace trimlog {

namespace {

/// The words that decide: a word that stands within another one is found with it. Nothing when no description is long
/// enough for all of them, since words of which none holds another each begin at a place of their own.
std::optional<QStringList> DecidingWords(const QString &text) {
  QStringList words =
      FoodSearchText(text).toLower().split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
  std::stable_sort(words.begin(), words.end(), [](const QString &a, const QString &b) { return a.size() > b.size(); });
  QStringList deciding;
  for (const QString &word : words) {
    const auto holdsWord = [&word](const QString &longer) { return longer.contains(word); };
    if (std::any_of(deciding.begin(), deciding.end(), holdsWord)) continue;
    if (deciding.size() == foodTextLength) return std::nullopt;
    deciding.append(word);
  }
  return deciding;
}

}  // namespace

QString FoodSearchText(const QString &typed) { return QString(typed).remove(QLatin1Char('"')).trimmed(); }

GridSource FoodSearchSource(const FoodListKind &kind, const QString &text) {
  GridSource source = ListedFoods(kind);
  source.order = {{QStringLiteral("MealDesc")}};
  source.orderAs.clear();  // few are found: to sort them costs less than to walk all names in the order of an index
  const std::optional<QStringList> words = DecidingWords(text);
  if (!words || words->isEmpty()) {
    source.where = QStringLiteral("meals_list.MealID = -99");
    source.params.clear();
    return source;
  }
  for (const QString &word : *words) {
    source.where += QStringLiteral(" AND ((InStr(1,LCase([MealDesc]),?))<>0)");
    source.params.append(word);
  }
  return source;
}

QString FoodsFoundHeading(int count) { return QStringLiteral("Food Description  (%1 foods found)").arg(count); }

QString NothingFoundHint(const QString &searchText) {
  return searchText.isEmpty() ? QStringLiteral("Type words of a food's name above and press Enter.")
                              : QStringLiteral("No food has all these words in its name.\nTry fewer or shorter words.");
}

QString PrintedSearchTitle(const QString &searchText) {
  return QStringLiteral("Food Search Results for: ") + searchText;
}

}  // namespace trimlog
