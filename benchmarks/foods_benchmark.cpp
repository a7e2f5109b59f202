// The food catalog beside bare SQLite, with the shipped foods and with ten times as many. At the end stand the ratios,
// with the limit that each should keep.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <map>

#include "catalogs/food_lists.h"
#include "catalogs/food_search.h"
#include "catalogs/windows/frmAddMeal.h"
#include "catalogs/windows/frmSetupFoods.h"
#include "core/data/nutrients.h"
#include "core/session/navigator.h"
#include "platform/grid/grid_model.h"
#include "platform/windows/grid/bound_grid.h"
#include "ratio_reporter.h"
#include "support/test_session.h"

using namespace trimlog;

namespace {

enum class Size { Ten, Shipped, TenTimes };

/// A session whose catalog has a given size.
class Catalog {
 public:
  explicit Catalog(Size size) {
    Transaction transaction(session.Data());
    if (size == Size::Ten)
      session.Data().Execute(
          QStringLiteral("DELETE meals_list.*, meals_list.MealID FROM meals_list WHERE (meals_list.MealID > 10);"));
    for (int copy = 1; size == Size::TenTimes && copy < 10; ++copy) {
      session.Data().Execute(
          QStringLiteral(
              "INSERT INTO meals_list ( MealID, MealDesc, MealGroupID, Amount, Calories, Fat, Protein, RecordTypeID ) "
              "SELECT MealID + ?, MealDesc & \" %1\", MealGroupID, Amount, Calories, Fat, Protein, 1 FROM meals_list "
              "WHERE (MealID < 10000);")
              .arg(copy),
          {copy * 10000});
    }
    transaction.Commit();
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
  }
  TestSession session;
  Navigator navigator;
};

Catalog &Of(Size size) {
  static Catalog ten(Size::Ten), shipped(Size::Shipped), tenTimes(Size::TenTimes);
  return size == Size::Ten ? ten : size == Size::Shipped ? shipped : tenTimes;
}

/// The same file through SQLite alone, read into memory as the window keeps it: keys.
class Bare {
 public:
  explicit Bare(Catalog &catalog) {
    catalog.session.Data().CopyTo(folder_.filePath(QStringLiteral("bare.dat")));
    sqlite3_open_v2(folder_.filePath(QStringLiteral("bare.dat")).toUtf8().constData(), &connection_,
                    SQLITE_OPEN_READONLY, nullptr);
    // The file's own collation must be known; the names are plain letters, so comparing them as such is the same.
    sqlite3_exec(connection_, "PRAGMA locking_mode = EXCLUSIVE", nullptr, nullptr, nullptr);
  }
  ~Bare() { sqlite3_close(connection_); }
  int Keys(const char *sql) {
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(connection_, sql, -1, &statement, nullptr);
    std::vector<qint64> keys;
    while (sqlite3_step(statement) == SQLITE_ROW) keys.push_back(sqlite3_column_int64(statement, 0));
    sqlite3_finalize(statement);
    return static_cast<int>(keys.size());
  }

 private:
  QTemporaryDir folder_;
  sqlite3 *connection_ = nullptr;
};

Bare &BareOf(Size size) {
  static Bare shipped(Of(Size::Shipped)), tenTimes(Of(Size::TenTimes));
  return size == Size::TenTimes ? tenTimes : shipped;
}

void Open(benchmark::State &state, Size size) {
  Catalog &catalog = Of(size);
  for (auto round : state) {
    frmSetupFoods window(*catalog.session, catalog.navigator, nullptr);
    window.show();
    benchmark::DoNotOptimize(window.grab());  // paints it, and runs nothing that waits for that
    state.PauseTiming();
    window.hide();
    state.ResumeTiming();
  }
}
void OpenTen(benchmark::State &state) { Open(state, Size::Ten); }
void OpenShipped(benchmark::State &state) { Open(state, Size::Shipped); }
void OpenTenTimes(benchmark::State &state) { Open(state, Size::TenTimes); }
/// The dialog that foods are picked in.
void OpenPicker(benchmark::State &state, Size size) {
  Catalog &catalog = Of(size);
  for (auto round : state) {
    frmAddMeal window(*catalog.session, catalog.navigator, FoodPicking{.caption = {}, .header = {}, .add = {}},
                      nullptr);
    window.show();
    benchmark::DoNotOptimize(window.grab());
    state.PauseTiming();
    window.hide();
    state.ResumeTiming();
  }
}
void OpenPickerTen(benchmark::State &state) { OpenPicker(state, Size::Ten); }
void OpenPickerShipped(benchmark::State &state) { OpenPicker(state, Size::Shipped); }
void OpenPickerTenTimes(benchmark::State &state) { OpenPicker(state, Size::TenTimes); }
BENCHMARK(OpenPickerTen)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenPickerShipped)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenPickerTenTimes)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenTen)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenShipped)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenTenTimes)->Unit(benchmark::kMillisecond);

/// The grid's way to the first rows in view.
void Show(benchmark::State &state, Size size, const GridSource &source, bool whole) {
  Catalog &catalog = Of(size);
  GridModel model(catalog.session->locale);
  model.SetColumns({{.name = QStringLiteral("MealDesc"), .field = QStringLiteral("MealDesc")},
                    {.name = QStringLiteral("Protein"), .field = QStringLiteral("Protein")}});
  model.Open(catalog.session.Data(), source);
  for (auto round : state) {
    model.SetSource(source, whole);
    model.Need(0, 25);
    benchmark::DoNotOptimize(model.index(0, 0).data().toString());
  }
}
const char *const bareSearch =
    "SELECT MealID FROM meals_list WHERE RecordTypeID <> 0 AND RecordTypeID <> 3 AND instr(lower(MealDesc), 'cheddar') "
    "<> 0 "
    "ORDER BY MealDesc COLLATE BINARY";
const char *const bareSort =
    "SELECT MealID FROM meals_list WHERE RecordTypeID <> 0 AND RecordTypeID <> 3 ORDER BY Protein DESC, MealDesc "
    "COLLATE BINARY";

void SearchShipped(benchmark::State &state) {
  Show(state, Size::Shipped, FoodSearchSource(SetupFoodLists(), QStringLiteral("cheddar")), true);
}
void SearchTenTimes(benchmark::State &state) {
  Show(state, Size::TenTimes, FoodSearchSource(SetupFoodLists(), QStringLiteral("cheddar")), true);
}
void SortShipped(benchmark::State &state) {
  Show(state, Size::Shipped, FoodListSource(SetupFoodLists(), {.sort = QStringLiteral("-Protein")}), false);
}
void SortTenTimes(benchmark::State &state) {
  Show(state, Size::TenTimes, FoodListSource(SetupFoodLists(), {.sort = QStringLiteral("-Protein")}), false);
}
void BareKeys(benchmark::State &state, Size size, const char *sql) {
  for (auto round : state) benchmark::DoNotOptimize(BareOf(size).Keys(sql));
}
void SearchShippedBare(benchmark::State &state) { BareKeys(state, Size::Shipped, bareSearch); }
void SearchTenTimesBare(benchmark::State &state) { BareKeys(state, Size::TenTimes, bareSearch); }
void SortShippedBare(benchmark::State &state) { BareKeys(state, Size::Shipped, bareSort); }
void SortTenTimesBare(benchmark::State &state) { BareKeys(state, Size::TenTimes, bareSort); }
void PickSearchShipped(benchmark::State &state) {
  Show(state, Size::Shipped, FoodSearchSource(PickedFoodLists(true, false), QStringLiteral("cheddar")), true);
}
void PickSearchTenTimes(benchmark::State &state) {
  Show(state, Size::TenTimes, FoodSearchSource(PickedFoodLists(true, false), QStringLiteral("cheddar")), true);
}
const char *const barePickSearch =
    "SELECT MealID FROM meals_list WHERE RecordTypeID <> 0 AND instr(lower(MealDesc), 'cheddar') <> 0 "
    "ORDER BY MealDesc COLLATE BINARY";
void PickSearchShippedBare(benchmark::State &state) { BareKeys(state, Size::Shipped, barePickSearch); }
void PickSearchTenTimesBare(benchmark::State &state) { BareKeys(state, Size::TenTimes, barePickSearch); }
BENCHMARK(PickSearchShipped)->Unit(benchmark::kMillisecond);
BENCHMARK(PickSearchShippedBare)->Unit(benchmark::kMillisecond);
BENCHMARK(PickSearchTenTimes)->Unit(benchmark::kMillisecond);
BENCHMARK(PickSearchTenTimesBare)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchShipped)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchShippedBare)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchTenTimes)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchTenTimesBare)->Unit(benchmark::kMillisecond);
BENCHMARK(SortShipped)->Unit(benchmark::kMillisecond);
BENCHMARK(SortShippedBare)->Unit(benchmark::kMillisecond);
BENCHMARK(SortTenTimes)->Unit(benchmark::kMillisecond);
BENCHMARK(SortTenTimesBare)->Unit(benchmark::kMillisecond);

// ---- Memory: a food costs its key and its place in the scroll bar until it is seen

double Megabytes() { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / 1e6; }

struct WindowMemory {
  double opened = 0;
  double scrolled = 0;  ///< after 50 pages of the list
};

WindowMemory MemoryOf(Size size) {
  Catalog &catalog = Of(size);
  const double before = Megabytes();
  frmSetupFoods window(*catalog.session, catalog.navigator, nullptr);
  window.show();
  BoundGrid &grid = *window.findChild<BoundGrid *>(QStringLiteral("grdMealsList"));
  while (!grid.Model().AllKeysLoaded()) QApplication::processEvents(QEventLoop::AllEvents, 20);
  WindowMemory memory{Megabytes() - before, 0};
  for (int page = 0; page < 50; ++page) QTest::keyClick(&grid, Qt::Key_PageDown);
  memory.scrolled = Megabytes() - before;
  return memory;
}

bool PrintMemory() {
  MemoryOf(Size::Ten);  // fonts and styles, once
  const WindowMemory ten = MemoryOf(Size::Ten), shipped = MemoryOf(Size::Shipped), tenTimes = MemoryOf(Size::TenTimes);
  std::printf("\nthe open window, megabytes: ten foods %.1f; 8,791 foods %.1f; 87,910 foods %.1f\n", ten.opened,
              shipped.opened, tenTimes.opened);
  std::printf("after 50 pages: 8,791 foods %.1f; 87,910 foods %.1f\n", shipped.scrolled, tenTimes.scrolled);
  const double bytesPerFood = (tenTimes.opened - shipped.opened) * 1e6 / (87910 - 8791);
  constexpr double most = 32;
  std::printf("a food that was not seen takes %.0f bytes (at most %.0f)%s\n", bytesPerFood, most,
              bytesPerFood > most ? "  EXCEEDED" : "");
  return bytesPerFood <= most;
}

}  // namespace

int main(int count, char **arguments) {
  QApplication application(count, arguments);
  benchmark::Initialize(&count, arguments);
  RatioReporter reporter({
      {"open the window, 8,791 foods / ten foods", "OpenShipped", "OpenTen", 1.5},
      {"open the window, 87,910 foods / ten foods", "OpenTenTimes", "OpenTen", 1.5},
      {"search, 8,791 foods / the bare scan", "SearchShipped", "SearchShippedBare", 1.5},
      {"search, 87,910 foods / the bare scan", "SearchTenTimes", "SearchTenTimesBare", 1.5},
      {"open the picker, 8,791 foods / ten foods", "OpenPickerShipped", "OpenPickerTen", 1.5},
      {"open the picker, 87,910 foods / ten foods", "OpenPickerTenTimes", "OpenPickerTen", 1.5},
      {"search in the picker, 8,791 foods / the bare scan", "PickSearchShipped", "PickSearchShippedBare", 1.2},
      {"search in the picker, 87,910 foods / the bare scan", "PickSearchTenTimes", "PickSearchTenTimesBare", 1.2},
      {"sort by protein, 8,791 foods / the bare ORDER BY", "SortShipped", "SortShippedBare", 1.5},
      {"sort by protein, 87,910 foods / the bare ORDER BY", "SortTenTimes", "SortTenTimesBare", 1.5},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const bool ratiosKept = reporter.PrintRatios();
  return PrintMemory() && ratiosKept ? 0 : 1;
}
