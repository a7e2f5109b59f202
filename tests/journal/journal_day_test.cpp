#include "journal/day/journal_day.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

using namespace trimlog;

namespace {

struct Heard {
  explicit Heard(JournalDay &day) {
    QObject::connect(&day, &JournalDay::ScopeChanged, &day, [this] { steps += QLatin1Char('s'); });
    QObject::connect(&day, &JournalDay::DateChanged, &day, [this] { steps += QLatin1Char('d'); });
  }
  QString Taken() { return std::exchange(steps, {}); }
  QString steps;
};

const QDate someDay(2026, 3, 28);

}  // namespace

TEST(JournalDay, AChangeOfTheDateLeavesAllDatesAndTheViewIsRememberedAtOnce) {
  TestSession test;
  Session &session = *test;
  session.settings.LastDiaryView = 1;
  JournalDay day(session, JournalKind::Diary(), someDay);
  Heard heard(day);
  EXPECT_FALSE(day.IsSingleDate());

  day.FollowRow(someDay.addDays(-2));
  EXPECT_EQ(heard.Taken(), "d");
  EXPECT_TRUE(day.Step(1));
  EXPECT_EQ(heard.Taken(), "ds");
  EXPECT_EQ(day.Date(), someDay.addDays(-1));
  EXPECT_EQ(session.settings.LastDiaryView, 2);
  EXPECT_EQ(JournalDay(session, JournalKind::Diary(), {}).View(), JournalView::SingleDate);
  EXPECT_EQ(JournalDay(session, JournalKind::Diary(), {}).Date(), session.Today());

  EXPECT_FALSE(day.GoToDate({}));
  EXPECT_TRUE(day.GoToDate(day.Date()));
  day.FollowRow(someDay.addDays(40));
  EXPECT_EQ(heard.Taken(), "");
  day.FollowAdded(someDay.addDays(40));
  EXPECT_EQ(heard.Taken(), "ds");
  EXPECT_TRUE(day.ShowView(JournalView::AllDates));
  day.FollowAdded(someDay);
  EXPECT_EQ(heard.Taken(), "s");
  EXPECT_EQ(day.Date(), someDay.addDays(40));
}

TEST(JournalDay, NothingIsLeftThatCannotBeSaved) {
  TestSession test;
  JournalDay day(*test, JournalKind::Planner(), someDay);
  day.mayLeave = [] { return false; };
  Heard heard(day);
  EXPECT_FALSE(day.Step(1));
  EXPECT_FALSE(day.ShowView(JournalView::AllDates));
  EXPECT_EQ(heard.Taken(), "");
  EXPECT_EQ(day.Date(), someDay);
  EXPECT_EQ(test->settings.LastPlannerView, 2);
}

TEST(JournalDay, TheQuickJournalKnowsOnlySingleDays) {
  TestSession test;
  test->settings.LastDiaryView = 1;
  JournalDay day(*test, JournalKind::Quick(), someDay);
  EXPECT_TRUE(day.ShowView(JournalView::AllDates));
  EXPECT_TRUE(day.IsSingleDate());
}
