// Deletes all foods of the user's own in a data file at once, as the catalog's grid does, and says on the standard
// output when it begins and when the deletion is committed.
//
//   food_deleter FILE
#include <cstdio>

#include "catalogs/food_lists.h"
#include "platform/grid/grid_model.h"

using namespace trimlog;

int main(int, char **arguments) {
  const auto data = Database::Open(QString::fromLocal8Bit(arguments[1]));
  GridModel model((QLocale()));
  model.SetColumns({{.name = QStringLiteral("MealDesc"), .field = QStringLiteral("MealDesc")}});
  model.Open(*data, FoodListSource(SetupFoodLists(), {.list = food_kind::myFoods}));
  std::vector<qint64> marked;
  for (int row = 0; row < model.RecordCount(); ++row) marked.push_back(*model.KeyOfRow(row));
  std::puts("begins");
  std::fflush(stdout);
  model.DeleteRows(marked);
  std::puts("committed");
  std::fflush(stdout);
}
