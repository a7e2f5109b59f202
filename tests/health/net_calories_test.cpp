#include "health/net_calories.h"

#include <gtest/gtest.h>

#include "health/body_formulas.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QDate firstDay(2026, 2, 1);

class NetCaloriesTest : public testing::Test {
 protected:
  void Eat(const QDate &date, double calories, bool planned = false, int person = 1) {
    session.Data().Execute(
        "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, "
        "Calories, IsPlanned ) VALUES ( ?, ?, ?, 1, ?, \"1\", ?, ? );",
        {person, ++record, date, food, calories, planned});
  }
  void Burn(const QDate &date, double calories, bool planned = false, int person = 1) {
    session.Data().Execute(
        "INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, Duration, "
        "Calories, IsPlanned ) VALUES ( ?, ?, ?, ?, \"30\", ?, ? );",
        {person, ++record, date, exercise, calories, planned});
  }
  TestSession session;
  int record = 0;
  int food = session.ValueOf("MealID", "meals_list").toInt();
  int exercise = session.ValueOf("ActivityID", "activities_list").toInt();
};

TEST(NetCaloriesRule, AMissingSumCountsAsNothingAndTwoOfThemAsNoDay) {
  using Sum = std::optional<double>;
  struct Case {
    Sum eaten, burned;
    int basal;
    Sum net;
  };
  const Case cases[] = {{{}, {}, 1400, {}},     {2000, {}, 1400, 600},       {{}, 300, 1400, -1700},
                        {2000, 300, 1400, 300}, {2000, 300, 0, 1700},        {0, {}, 1400, -1400},
                        {{}, 0, 0, 0},          {1500.5, 200.25, 0, 1300.25}};
  for (const Case &c : cases) EXPECT_EQ(NetCalories(c.eaten, c.burned, c.basal), c.net);
}

TEST_F(NetCaloriesTest, AddsUpEachDayWithoutPlansAndWithoutOtherPeople) {
  constexpr int someoneElse = -1;
  session.Weigh(firstDay.addDays(2), 150);  // from then on 1447.56 a day, as a whole number 1448
  session.Weigh(firstDay, 300, someoneElse);
  Eat(firstDay, 500);
  Eat(firstDay, 700);
  Eat(firstDay, 9000, true);
  Eat(firstDay, 9000, false, someoneElse);
  Burn(firstDay, 250);
  Burn(firstDay.addDays(1), 9000, false, someoneElse);
  Burn(firstDay.addDays(2), 300);
  Burn(firstDay.addDays(3), 9000, true);
  Eat(firstDay.addDays(5), 2000);
  Eat(firstDay.addDays(-1), 9000);  // outside the range
  const qint64 commits = session.Data().Counts().commits;
  const auto days = ReadNetCalories(*session, firstDay, firstDay.addDays(4));
  EXPECT_EQ(session.Data().Counts().commits, commits) << "reading writes nothing";
  ASSERT_EQ(days.size(), 5u);
  EXPECT_EQ(days[0].eaten, 1200);
  EXPECT_EQ(days[0].burned, 250);
  EXPECT_EQ(days[0].basal, 0) << "no weight to tell a rate from";
  EXPECT_EQ(days[0].Net(), 950);
  EXPECT_EQ(days[1].Net(), std::nullopt);
  EXPECT_EQ(days[2].eaten, std::nullopt);
  EXPECT_EQ(days[2].Net(), -300 - 1448);
  EXPECT_EQ(days[3].Net(), std::nullopt) << "a plan is not a meal";
  EXPECT_EQ(days[4].basal, 1448);
  EXPECT_EQ(days[4].date, firstDay.addDays(4));

  session->settings.NetCaloriesBMR = false;
  EXPECT_EQ(ReadNetCalories(*session, firstDay, firstDay.addDays(4))[2].Net(), -300);
  EXPECT_TRUE(ReadNetCalories(*session, firstDay, firstDay.addDays(-1)).empty());
}

TEST_F(NetCaloriesTest, AgreesWithTheSavedQueriesOverTheWholeHistory) {
  for (int day = 0; day < 60; ++day) {
    if (day % 7 == 0) session.Weigh(firstDay.addDays(day), 170 - day / 10.0);
    for (int entry = 0; entry < day % 4; ++entry) Eat(firstDay.addDays(day), 300 + 37 * entry + day, entry == 2);
    for (int entry = 0; entry < day % 3; ++entry) Burn(firstDay.addDays(day), 100 + 11 * day, entry == 1);
  }
  const auto saved = [this](const char *sum, const char *query, const QDate &date) -> std::optional<double> {
    const Recordset row = session.Data().OpenRecordset(
        QStringLiteral("SELECT %1 FROM %2 WHERE ((PersonID=1) AND (ThisDate=?));").arg(sum, query), {date});
    return row.Eof() ? std::nullopt : std::optional(row.Field(0).toDouble());
  };
  const auto days = ReadNetCalories(*session, firstDay.addDays(9), firstDay.addDays(50));
  ASSERT_EQ(days.size(), 42u);
  for (const NetCaloriesDay &day : days) {
    EXPECT_EQ(day.eaten, saved("CaloriesEaten", "qryCalorieSumMeals", day.date));
    EXPECT_EQ(day.burned, saved("CaloriesBurned", "qryCalorieSumActivities", day.date));
    EXPECT_EQ(day.basal, WholeLong(CalcBMR(*session, day.date)));
  }
}

TEST_F(NetCaloriesTest, ALongHistoryCostsNoMoreThanAShortOne) {
  const QDate monthStart(2026, 3, 1);
  const auto rowsRead = [&] {
    const StoreCounts before = session.Data().Counts();
    ReadNetCalories(*session, monthStart, monthStart.addDays(41));
    const StoreCounts after = session.Data().Counts();
    return std::pair(after.rowsRead - before.rowsRead, after.statements - before.statements);
  };
  for (int day = 0; day < 42; ++day) {
    session.Weigh(monthStart.addDays(day), 150);
    Eat(monthStart.addDays(day), 2000);
  }
  rowsRead();
  const auto shortHistory = rowsRead();
  Transaction transaction(session.Data());
  for (int day = 1; day <= 700; ++day) {
    session.Weigh(monthStart.addDays(-day), 160);
    Eat(monthStart.addDays(-day), 1000);
  }
  transaction.Commit();
  EXPECT_EQ(rowsRead(), shortHistory);
}

}  // namespace
}  // namespace trimlog
