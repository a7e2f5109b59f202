#include "weightlog/weight_statistics.h"

#include <gtest/gtest.h>

#include "typed_calendar.h"

namespace trimlog {
namespace {

std::string Panel(const Statistics &shown) {
  return QStringList{shown.LbsLost, shown.LbsPerWeek, shown.LbsLeft, shown.DaysLeft, shown.ProjDate}
      .join(" | ")
      .toStdString();
}

TEST(WeightStatistics, TellsPaceAndProjectionFromTheFirstAndTheLastWeight) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  struct Case {
    const char *why;
    double first, last;
    int days;
    std::optional<double> goal;
    const char *panel;
  };
  for (const Case &c :
       {Case{"losing", 200, 190, 35, 150, "10 | 2.0 | 40 | 140 | 7/26/2026"},
        Case{"one weight only", 200, 200, 0, 150, "0 | --- | 50 | --- | ---"},
        Case{"even", 200, 200, 10, 150, "0 | --- | 50 | --- | ---"},
        Case{"gained", 190.2, 200.45, 10, 150, "Gained 10.3 | --- | 50.5 | --- | ---"},
        Case{"gained, below a goal above", 140, 145, 10, 150, "Gained 5 | --- | -5 | --- | ---"},
        Case{"less than a week: the pace is the whole loss", 200, 197, 6, 150, "3 | 3 | 47 | 110 | 5/28/2026"},
        Case{"a week exactly", 200, 197, 7, 150, "3 | 3.0 | 47 | 110 | 5/29/2026"},
        Case{"goal reached", 200, 150, 70, 150, "50 | 5.0 | 0 | 0 | 4/12/2026"},
        Case{"goal above the weight", 200, 150, 70, 160, "50 | 5.0 | 0 | 0 | 4/12/2026"},
        Case{"half a day rounds to even", 200, 198, 14, 197.5, "2 | 1.0 | 0.5 | 4 | 2/19/2026"},
        Case{"a pace that shows as nothing projects nothing", 200, 199.9, 70, 150, "0.1 | 0.0 | 49.9 | 0 | 4/12/2026"},
        Case{"beyond what days can count", 9000, 8990, 700, 150, "10 | 0.1 | 8840 | --- | ---"},
        Case{"no goal known", 200, 190, 35, std::nullopt, "10 | 2.0 | --- | --- | ---"},
        Case{"binary dust", 200.1, 190.05, 7, 150, "10.1 | 10.1 | 40.1 | 28 | 3/8/2026"}}) {
    const QDate start(2026, 2, 1);
    const Statistics shown = MakeStatistics({{start, c.first}, {start.addDays(c.days), c.last}}, c.goal, english);
    EXPECT_EQ(Panel(shown), c.panel) << c.why;
  }
}

TEST(WeightStatistics, FollowsTheDataFileAndTheLocale) {
  TypedCalendar calendar(QLocale(QLocale::German, QLocale::Germany));
  int announced = 0;
  QObject::connect(&calendar.session->changes, &DataChanges::StatisticsChanged, [&] { ++announced; });
  UpdateStats(*calendar.session);
  EXPECT_EQ(Panel(calendar.session->profile.statistics), "--- | --- | --- | --- | ---");
  EXPECT_FALSE(calendar.session->profile.FirstWeightDate.isValid());
  calendar.Type("2026-02-01", "93,5");
  calendar.Type("2026-02-15", "91.0");
  EXPECT_EQ(announced, 3);
  EXPECT_EQ(calendar.session->profile.FirstWeightDate, QDate(2026, 2, 1));
  EXPECT_EQ(calendar.session->profile.LastWeightDate, QDate(2026, 2, 15));
  EXPECT_EQ(Panel(calendar.session->profile.statistics), "2,5 | 1,3 | 0 | 0 | 15.02.2026");
}

TEST(WeightStatistics, TellsHowMuchOfTheWayToTheGoalIsDone) {
  const QDate day(2026, 2, 1);
  struct Case {
    double first, last;
    std::optional<double> goal, progress;
  };
  for (const Case &c : {Case{200, 190, 150, 0.2}, Case{200, 200, 150, 0.0}, Case{200, 210, 150, 0.0},
                        Case{200, 140, 150, 1.0}, Case{200, 190, 200, {}}, Case{200, 190, {}, {}}}) {
    EXPECT_EQ(MakeStatistics({{day, c.first}, {day.addDays(7), c.last}}, c.goal, QLocale::c()).Progress, c.progress)
        << c.last;
  }
}

TEST(WeightStatistics, ThatCannotBeReadAreToldAndLeaveTheShownOnes) {
  TypedCalendar calendar;
  calendar.Type("2026-02-01", "200");
  const std::string before = Panel(calendar.session->profile.statistics);
  calendar.session.Data().Execute("ALTER TABLE weight_loss RENAME COLUMN ThisWeight TO Hidden;");
  calendar.session.boxes.Expect("Error Updating Statistics",
                                "An error occurred while updating your weight loss statistics.");
  UpdateStats(*calendar.session);
  EXPECT_EQ(Panel(calendar.session->profile.statistics), before);
}

}  // namespace
}  // namespace trimlog
