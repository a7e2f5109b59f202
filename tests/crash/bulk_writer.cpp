// Does to a program folder's data file what takes many rows at once, and says on the standard output when it begins and
// when it is committed.
//
//   bulk_writer FOLDER delete   all foods of the user's own, as the catalog's grid does
//   bulk_writer FOLDER paste    500 entries into another day, as the journal's does
#include <cstdio>

#include "catalogs/food_lists.h"
#include "journal/day/day_records.h"
#include "platform/grid/grid_model.h"
#include "support/test_session.h"

using namespace trimlog;

namespace {

void Say(const char *what) {
  std::puts(what);
  std::fflush(stdout);
}

/// The first rows of a list.
std::vector<qint64> Keys(const GridModel &model, int most) {
  std::vector<qint64> keys;
  for (int row = 0; row < model.RecordCount() && row < most; ++row) keys.push_back(*model.KeyOfRow(row));
  return keys;
}

void DeleteFoods(Session &session) {
  GridModel foods(session.locale);
  foods.SetColumns({{.name = "MealDesc", .field = "MealDesc"}});
  foods.Open(session.Data(), FoodListSource(SetupFoodLists(), {.list = food_kind::myFoods}));
  const std::vector<qint64> marked = Keys(foods, foods.RecordCount());
  Say("begins");
  foods.DeleteRows(marked);
}

void PasteEntries(Session &session) {
  GridModel entries(session.locale);
  entries.SetColumns({{.name = "MealID", .field = "MealID"}});
  entries.Open(session.Data(), MealsSource({.personID = 1, .date = QDate(2026, 3, 1)}, EntryKind::Eaten));
  const QList<QVariantMap> rows = entries.WholeRows(Keys(entries, 500));
  Say("begins");
  PasteDayRecords(session, Table::Meals, EntryKind::Eaten, rows, QDate(2026, 3, 2));
}

}  // namespace

int main(int, char **arguments) {
  const std::unique_ptr<SettingsStore> store = MemorySettings();
  FixedClock clock(QDateTime(QDate(2026, 3, 2), QTime(12, 0)));
  RecordingMachine machine;
  QueuedBoxes boxes;
  RecordingPrinting printing;
  Session session({QString::fromLocal8Bit(arguments[1]), *store, clock, machine, boxes, printing, QLocale::c()});
  session.database = Database::Open(session.DataFilePath());
  session.profile.CurrentPersonID = "1";
  QString(arguments[2]) == "paste" ? PasteEntries(session) : DeleteFoods(session);
  Say("committed");
}
