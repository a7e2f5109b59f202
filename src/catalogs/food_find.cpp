#include "catalogs/food_find.h"

#include <algorithm>

#include "platform/store/recordset.h"

namespace trimlog {

namespace {

std::vector<int> RowsWith(GridModel &foods, const QString &text) {
  GridSource narrowed = foods.Source();
  const QString criterion = QStringLiteral("(MealDesc LIKE ?)");
  narrowed.where = narrowed.where.isEmpty() ? criterion : narrowed.where + QStringLiteral(" AND ") + criterion;
  narrowed.params.append(QLatin1Char('*') + text + QLatin1Char('*'));
  const GridStatement statement = KeysStatement(narrowed);
  Recordset rows = foods.File().OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
  std::vector<qint64> keys;
  for (; !rows.Eof(); rows.MoveNext()) keys.push_back(rows.Field(narrowed.key).toLongLong());
  return foods.RowsOfKeys(keys);
}

bool IsSameList(const GridSource &one, const GridSource &other) {
  return one.where == other.where && one.params == other.params && one.from == other.from && one.order == other.order;
}

}  // namespace

FoodFinder::Result FoodFinder::Find(GridModel &foods, const QString &text, int currentRow) {
  const bool again = !found_.isEmpty() && text == found_ && IsSameList(foods.Source(), searched_);
  const std::vector<int> rows = RowsWith(foods, text);
  const auto row = again ? std::upper_bound(rows.begin(), rows.end(), currentRow) : rows.begin();
  if (row == rows.end()) {
    return {std::nullopt, again ? QStringLiteral("No other foods were found matching that description.")
                                : QStringLiteral("No foods were found matching that description.")};
  }
  found_ = text;
  searched_ = foods.Source();
  return {foods.KeyOfRow(*row), {}};
}

}  // namespace trimlog
