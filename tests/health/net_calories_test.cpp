#include "health/net_calories.h"

#include <gtest/gtest.h>

#include "health/all_dates.h"
#include "health/body_formulas.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QDate firstDay(2026, 2, 1);

class NetCaloriesTest : public testing::Test {
 protected:
  void Eat(const QDate &date, double calories, bool planned = false) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, "
                       "Calories, IsPlanned ) VALUES ( 1, ?, ?, 1, ?, \"1\", ?, ? );"),
        {++record, date, food, calories, planned});
  }
  void Burn(const QDate &date, double calories, bool planned = false) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, Duration, "
                       "Calories, IsPlanned ) VALUES ( 1, ?, ?, ?, \"30\", ?, ? );"),
        {++record, date, exercise, calories, planned});
  }
  void Weigh(const QDate &date, double weight) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( 1, ?, ?, 0 );"),
        {date, weight});
  }

  int DaysHeld() {
    return session.Data()
        .OpenRecordset(QStringLiteral("SELECT Count(*) AS Days FROM temp_alldates;"))
        .Integer(QStringLiteral("Days"));
  }

  TestSession session;
  int record = 0;
  int food = session.ValueOf(QStringLiteral("MealID"), QStringLiteral("meals_list")).toInt();
  int exercise = session.ValueOf(QStringLiteral("ActivityID"), QStringLiteral("activities_list")).toInt();
};

TEST(NetCaloriesRule, ABlankSumCountsAsNothingAndTwoBlanksAsNoDay) {
  struct Case {
    const char *eaten, *burned;
    int basal;
    std::optional<double> net;
  };
  const Case cases[] = {
      {"", "", 1400, std::nullopt}, {"2000", "", 1400, 600}, {"", "300", 1400, -1700}, {"2000", "300", 1400, 300},
      {"2000", "300", 0, 1700},     {"0", "", 1400, -1400},  {"", "0", 0, 0},          {"1500.5", "200.25", 0, 1300.25},
  };
  for (const Case &c : cases) {
    EXPECT_EQ(NetCalories(QString::fromLatin1(c.eaten), QString::fromLatin1(c.burned), c.basal), c.net)
        << c.eaten << " - " << c.burned;
  }
}

TEST_F(NetCaloriesTest, AddsUpEachDayAndLeavesPlannedEntriesOut) {
  Weigh(firstDay.addDays(2), 150);  // from then on 1447.56 a day, as a whole number 1448
  Eat(firstDay, 500);
  Eat(firstDay, 700);
  Eat(firstDay, 9000, true);
  Burn(firstDay, 250);
  Burn(firstDay.addDays(2), 300);
  Burn(firstDay.addDays(3), 9000, true);
  Eat(firstDay.addDays(5), 2000);
  Eat(firstDay.addDays(-1), 9000);  // outside the range
  const auto days = ReadNetCalories(*session, firstDay, firstDay.addDays(4));
  ASSERT_EQ(days.size(), 5u);
  EXPECT_EQ(days[0].net, 950);  // 500 + 700 - 250, and no weight to tell a rate from
  EXPECT_EQ(days[1].net, std::nullopt);
  EXPECT_EQ(days[2].net, -300 - 1448);
  EXPECT_EQ(days[3].net, std::nullopt) << "a plan is not a meal";
  EXPECT_EQ(days[4].ThisIndex, 5);
  EXPECT_EQ(days[4].date, firstDay.addDays(4));

  session->settings.NetCaloriesBMR = false;
  EXPECT_EQ(ReadNetCalories(*session, firstDay, firstDay.addDays(4))[2].net, -300);
  EXPECT_TRUE(ReadNetCalories(*session, firstDay, firstDay.addDays(-1)).empty());
}

TEST_F(NetCaloriesTest, AgreesWithTheSavedQueriesOverTheWholeHistory) {
  for (int day = 0; day < 60; ++day) {
    if (day % 7 == 0) Weigh(firstDay.addDays(day), 170 - day / 10.0);
    for (int entry = 0; entry < day % 4; ++entry) Eat(firstDay.addDays(day), 300 + 37 * entry + day, entry == 2);
    for (int entry = 0; entry < day % 3; ++entry) Burn(firstDay.addDays(day), 100 + 11 * day, entry == 1);
  }
  const auto days = ReadNetCalories(*session, firstDay.addDays(9), firstDay.addDays(50));
  ASSERT_EQ(days.size(), 42u);
  Recordset rows = session.Data().OpenRecordset(QStringLiteral(
      "SELECT temp_alldates.PersonID, temp_alldates.ThisDate, temp_alldates.ThisIndex, "
      "qryCalorieSumActivities.CaloriesBurned, qryCalorieSumMeals.CaloriesEaten FROM (temp_alldates LEFT JOIN "
      "qryCalorieSumActivities ON (temp_alldates.PersonID = qryCalorieSumActivities.PersonID) AND "
      "(temp_alldates.ThisDate = "
      "qryCalorieSumActivities.ThisDate)) LEFT JOIN qryCalorieSumMeals ON (temp_alldates.PersonID = "
      "qryCalorieSumMeals.PersonID) AND (temp_alldates.ThisDate = qryCalorieSumMeals.ThisDate) WHERE "
      "(((temp_alldates.PersonID)=1)); "));
  int seen = 0;
  for (; !rows.Eof(); rows.MoveNext(), ++seen) {
    const NetCaloriesDay &day = days.at(rows.Integer(QStringLiteral("ThisIndex")) - 1);
    const QDate date = rows.Field(QStringLiteral("ThisDate")).toDate();
    EXPECT_EQ(day.date, date);
    EXPECT_EQ(day.net, NetCalories(rows.Text(QStringLiteral("CaloriesEaten")),
                                   rows.Text(QStringLiteral("CaloriesBurned")), WholeLong(CalcBMR(*session, date))));
  }
  EXPECT_EQ(seen, 42);
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
    Weigh(monthStart.addDays(day), 150);
    Eat(monthStart.addDays(day), 2000);
  }
  rowsRead();
  const auto shortHistory = rowsRead();
  Transaction transaction(session.Data());
  for (int day = 1; day <= 700; ++day) {
    Weigh(monthStart.addDays(-day), 160);
    Eat(monthStart.addDays(-day), 1000);
  }
  transaction.Commit();
  EXPECT_EQ(rowsRead(), shortHistory);
}

TEST_F(NetCaloriesTest, TheDaysOfARangeAreWrittenOnceInOneTransaction) {
  const auto commitsOf = [this](const QDate &first, const QDate &last, bool addRows = true) {
    const qint64 before = session.Data().Counts().commits;
    FillAllDates(session.Data(), QStringLiteral("1"), first, last, addRows);
    return session.Data().Counts().commits - before;
  };
  EXPECT_EQ(commitsOf(QDate(2024, 2, 27), QDate(2024, 3, 1)), 1);
  EXPECT_EQ(DaysHeld(), 4);  // the leap day among them
  EXPECT_EQ(
      session
          .ValueOf(QStringLiteral("ThisIndex"), QStringLiteral("temp_alldates"), QStringLiteral("ThisDate=#2/29/2024#"))
          .toStdString(),
      "3");
  EXPECT_EQ(commitsOf(QDate(2024, 2, 27), QDate(2024, 3, 1)), 0) << "the same days again";
  EXPECT_EQ(commitsOf(QDate(2024, 2, 28), QDate(2024, 3, 2)), 1) << "as many days, but others";
  EXPECT_EQ(commitsOf(QDate(2024, 2, 28), QDate(2024, 3, 2), false), 1);
  EXPECT_EQ(DaysHeld(), 0);
}

}  // namespace
}  // namespace trimlog
