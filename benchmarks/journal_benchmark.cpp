// The journal with 25 years of entries beside one month of them: what a person does in it must not feel the years.
// Processor time counts: what the disk takes is the same for both.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>

#include "core/data/nutrients.h"
#include "core/session/navigator.h"
#include "journal/day/day_records.h"
#include "journal/windows/frmDiary.h"
#include "journal/windows/journal_tabs.h"
#include "platform/windows/grid/bound_grid.h"
#include "ratio_reporter.h"
#include "support/test_session.h"

using namespace trimlog;

namespace {

enum class Size { Month, Years };
const QDate today(2026, 3, 1);
constexpr int mealsADay = 12;
constexpr int yearsOfDays = 9125;

/// A session whose journal holds the last days: 12 foods on each, an exercise on two of three, measurements weekly.
class Journal {
 public:
  explicit Journal(int days) {
    Database &data = session.Data();
    Transaction transaction(data);
    int meals = 0, activities = 0, measurements = 0;
    for (int day = 0; day < days; ++day) {
      const QDate date = today.addDays(-day);
      for (int n = 0; n < mealsADay; ++n) {
        data.Execute(QStringLiteral("INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, "
                                    "Calories, Fat, IsPlanned ) VALUES ( 1, ?, ?, ?, ?, \"1\", ?, 3.5, 0 );"),
                     {++meals, date, 1 + n / 2, 1 + (day * 7 + n * 13) % 8000, 100 + n});
      }
      if (day % 3 != 0) {
        data.Execute(QStringLiteral("INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, Duration, "
                                    "Calories, IsPlanned ) VALUES ( 1, ?, ?, 1, \"30\", 150, 0 );"),
                     {++activities, date});
      }
      if (day % 7 == 0) {
        data.Execute(QStringLiteral("INSERT INTO measurements ( PersonID, RecordID, ThisDate, Chest, Waist ) "
                                    "VALUES ( 1, ?, ?, 40, 33 );"),
                     {++measurements, date});
      }
    }
    transaction.Commit();
    FillNutrientDefinitions(session->nutrients, data);
    FillSelectedNutrientsArray(session->nutrients, data);
    session->settings.ConfirmMealsUpdates = 1;
    session->settings.ConfirmDeletes = false;
  }
  /// A window that has painted itself.
  std::unique_ptr<frmDiary> Open(JournalView view, int page = 1) {
    session->settings.LastDiaryView = static_cast<int>(view);
    session->settings.DefaultDiaryTab = page;
    auto window = std::make_unique<frmDiary>(*session, navigator, doors);
    window->resize(900, 600);
    window->show();
    window->Activated();
    benchmark::DoNotOptimize(window->grab());
    return window;
  }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
};

Journal &Of(Size size) {
  static Journal month(30), years(yearsOfDays);
  return size == Size::Month ? month : years;
}

void Open(benchmark::State &state, Size size, JournalView view, int page) {
  for (auto round : state) {
    const auto window = Of(size).Open(view, page);
    state.PauseTiming();
    window->hide();
    state.ResumeTiming();
  }
}

void Step(benchmark::State &state, Size size) {
  const auto window = Of(size).Open(JournalView::SingleDate);
  bool back = false;
  for (auto round : state) {
    QTest::keyClick(window->focusWidget(), back ? Qt::Key_Right : Qt::Key_Left, Qt::AltModifier);
    benchmark::DoNotOptimize(window->grab());
    back = !back;
  }
}

void AddFood(benchmark::State &state, Size size) {
  Journal &journal = Of(size);
  std::vector<int> added;
  journal.doors.AddMeal = [&](QWidget *, const EntryOpening &opening) {
    MealEntry entry{.date = opening.date, .MealTypeID = 6, .MealID = 5, .Amount = QStringLiteral("1")};
    added.push_back(AddRecMeal(*journal.session, EntryKind::Eaten, entry));
    opening.stored(added.back(), opening.date);
  };
  const auto window = journal.Open(JournalView::SingleDate);
  auto *cmdNewMeal = window->findChild<QAbstractButton *>(QStringLiteral("cmdNewMeal"));
  for (auto round : state) {
    cmdNewMeal->click();
    benchmark::DoNotOptimize(window->grab());
    state.PauseTiming();
    DeleteDayRecords(*journal.session, Table::Meals, {added.back()});
    state.ResumeTiming();
  }
}

void ChangeServings(benchmark::State &state, Size size) {
  const auto window = Of(size).Open(JournalView::SingleDate);
  auto &grid = *window->findChild<BoundGrid *>(QStringLiteral("grdMeals"));
  const int column = grid.Model().ColumnByName(QStringLiteral("Amount"));
  bool two = false;
  for (auto round : state) {
    two = !two;
    grid.Selection().GoTo(grid.Model().index(3, column));
    grid.EditCell(grid.currentIndex());
    QTest::keyClicks(grid.OpenEditor(), two ? QStringLiteral("2") : QStringLiteral("1"));
    QTest::keyClick(grid.OpenEditor(), Qt::Key_Tab);
    benchmark::DoNotOptimize(window->grab());
  }
}

constexpr auto single = JournalView::SingleDate;
constexpr auto all = JournalView::AllDates;
BENCHMARK_CAPTURE(Open, day_month, Size::Month, single, 1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, day_years, Size::Years, single, 1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, day_exercises_month, Size::Month, single, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, day_exercises_years, Size::Years, single, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, day_measurements_month, Size::Month, single, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, day_measurements_years, Size::Years, single, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, all_month, Size::Month, all, 1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, all_years, Size::Years, all, 1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, all_exercises_month, Size::Month, all, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, all_exercises_years, Size::Years, all, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, all_measurements_month, Size::Month, all, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Open, all_measurements_years, Size::Years, all, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Step, month, Size::Month)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Step, years, Size::Years)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(AddFood, month, Size::Month)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(AddFood, years, Size::Years)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ChangeServings, month, Size::Month)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ChangeServings, years, Size::Years)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int count, char **arguments) {
  QApplication application(count, arguments);
  benchmark::Initialize(&count, arguments);
  RatioReporter reporter({
      {"open a day, 25 years / a month", "Open/day_years", "Open/day_month", 1.2},
      {"open a day's exercises", "Open/day_exercises_years", "Open/day_exercises_month", 1.2},
      {"open a day's measurements", "Open/day_measurements_years", "Open/day_measurements_month", 1.2},
      {"step a day", "Step/years", "Step/month", 1.2},
      {"add a food", "AddFood/years", "AddFood/month", 1.2},
      {"change servings", "ChangeServings/years", "ChangeServings/month", 1.2},
      {"open all dates, 109,500 meals / 360", "Open/all_years", "Open/all_month", 1.5},
      {"open all dates, 6,083 exercises / 20", "Open/all_exercises_years", "Open/all_exercises_month", 1.5},
      {"open all dates, 1,304 measurements / 5", "Open/all_measurements_years", "Open/all_measurements_month", 1.5},
  });
  for (const Size size : {Size::Month, Size::Years}) Of(size).Open(single);  // made, and fonts and styles loaded
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.PrintRatios() ? 0 : 1;
}
