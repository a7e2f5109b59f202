// What a month switch and a typed weight take with ten years of daily weights and meals beside one month of them. At
// the end stand the ratios, with the limit that each should keep.
#include <benchmark/benchmark.h>

#include "ratio_reporter.h"
#include "support/test_session.h"
#include "weightlog/calendar_model.h"

using namespace trimlog;

namespace {

constexpr int mealsADay = 4;

/// A profile with daily weights and meals up to the end of March 2026, the calendar open on that month.
class Calendar {
 public:
  explicit Calendar(const QDate &first) {
    FillNutrientDefinitions(session->nutrients, session.Data());
    session->profile.rewards.type = RewardType::Never;
    Fill(first, QDate(2026, 3, 31));
    model = std::make_unique<CalendarModel>(*session);
    model->Load();
  }

  void SwitchMonth() {
    forward_ = !forward_;
    forward_ ? model->GotoNextMonth() : model->GotoPreviousMonth();
  }
  void TypeWeight() {
    heavier_ = !heavier_;
    model->EnterCell(15);
    model->SaveWeight(heavier_ ? QStringLiteral("181.5") : QStringLiteral("180.5"));
  }

  TestSession session;
  std::unique_ptr<CalendarModel> model;

 private:
  void Fill(const QDate &first, const QDate &last) {
    Transaction transaction(session.Data());
    const QString meal =
        session.ValueOf(QStringLiteral("Min(MealID)"), QStringLiteral("meals_list"), QStringLiteral("MealID > 0"));
    int record = 0;
    for (QDate day = first; day <= last; day = day.addDays(1)) {
      session.Data().Execute(QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) "
                                            "SELECT 1, ?, 180.5, 0.5;"),
                             {day});
      for (int n = 0; n < mealsADay; ++n) {
        session.Data().Execute(QStringLiteral("INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, "
                                              "Amount, Calories, IsPlanned ) SELECT 1, ?, ?, 1, ?, \"1\", 500, 0;"),
                               {++record, day, meal.toInt()});
      }
    }
    transaction.Commit();
  }

  bool forward_ = true;
  bool heavier_ = false;
};

Calendar &OneMonth() {
  static Calendar calendar(QDate(2026, 1, 20));
  return calendar;
}

Calendar &TenYears() {
  static Calendar calendar(QDate(2016, 4, 1));
  return calendar;
}

template <Calendar &(*Which)()>
void SwitchMonth(benchmark::State &state) {
  for (auto round : state) Which().SwitchMonth();
}

template <Calendar &(*Which)()>
void TypeWeight(benchmark::State &state) {
  for (auto round : state) Which().TypeWeight();
}

BENCHMARK(SwitchMonth<OneMonth>)->Name("SwitchMonthOneMonth")->Iterations(50)->Repetitions(9);
BENCHMARK(SwitchMonth<TenYears>)->Name("SwitchMonthTenYears")->Iterations(50)->Repetitions(9);
BENCHMARK(TypeWeight<OneMonth>)->Name("TypeWeightOneMonth")->Iterations(50)->Repetitions(9);
BENCHMARK(TypeWeight<TenYears>)->Name("TypeWeightTenYears")->Iterations(50)->Repetitions(9);

}  // namespace

int main(int count, char **arguments) {
  benchmark::Initialize(&count, arguments);
  RatioReporter reporter({
      {"a month switch, ten years / one month", "SwitchMonthTenYears", "SwitchMonthOneMonth", 1.2},
      {"a typed weight, ten years / one month", "TypeWeightTenYears", "TypeWeightOneMonth", 1.2},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.PrintRatios() ? 0 : 1;
}
