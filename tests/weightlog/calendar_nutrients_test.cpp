#include "weightlog/calendar_nutrients.h"

#include <gtest/gtest.h>

#include "typed_calendar.h"

namespace trimlog {
namespace {

class CalendarNutrients : public testing::Test {
 protected:
  CalendarNutrients() {
    FillNutrientDefinitions(calendar.session->nutrients, calendar.session.Data());
    calendar.session->settings.NetCaloriesBMR = false;
  }

  void Eat(const char *date, double calories, double fatCalories, double iron, bool planned = false, int person = 1) {
    calendar.session.Data().Execute(
        "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, "
        "CalFromFat, Iron, Custom1, IsPlanned ) SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, 1 AS Expr4, "
        "? AS Expr5, \"1\" AS Expr6, ? AS Expr7, ? AS Expr8, ? AS Expr9, 1.5 AS Expr10, ? AS Expr11;",
        {person, ++records, Day(date), calendar.session.ValueOf("Min(MealID)", "meals_list", "MealID > 0").toInt(),
         calories, fatCalories, iron, planned});
  }
  void Exercise(const char *date, double calories, bool planned = false, int person = 1) {
    calendar.session.Data().Execute(
        "INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, Duration, Calories, IsPlanned ) "
        "SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, ? AS Expr4, \"30\" AS Expr5, ? AS Expr6, ? AS Expr7;",
        {person, ++records, Day(date), calendar.session.ValueOf("Min(ActivityID)", "activities_list").toInt(), calories,
         planned});
  }

  TypedCalendar calendar;
  int records = 0;
};

TEST_F(CalendarNutrients, ShowsTheDaysFigureByTheChosenNutrient) {
  Eat("2026-03-02", 400, 100, 1.25);
  Eat("2026-03-02", 200, 50, 0.5);
  Eat("2026-03-02", 999, 999, 99, true);  // planned: not eaten
  Eat("2026-03-03", 0, 10, 0);
  Eat("2026-03-06", 8, 3, 0);  // 37.5 percent
  Exercise("2026-03-02", 150);
  Exercise("2026-03-02", 999, true);
  for (const char *day : {"2026-03-02", "2026-03-05"}) {  // someone else's
    Eat(day, 999, 999, 99, false, -1);
    Exercise(day, 999, false, -1);
  }
  Exercise("2026-03-04", 300);
  struct Case {
    int NutrientID;
    const char *days;  // from the 2nd to the 6th
  };
  for (const Case &c : {Case{1, "600 kcal|0 kcal|||8 kcal"}, Case{101, "150 kcal||300 kcal||"},
                        Case{102, "450 Cal|0 Cal|-300 Cal||8 Cal"}, Case{23, "25 %|0 %|||38 %"},
                        Case{7, "1.750 mg|0.000 mg|||0.000 mg"}, Case{28, "3.00|1.50|||1.50"}}) {
    calendar.session->settings.NutrientID = c.NutrientID;
    calendar.model->BuildMonth(Day("2026-03-01"));
    const QString unit = QLatin1Char(' ') + calendar.session->nutrients.NutrientDefs[0].shortUnit;
    QStringList shown;
    for (int day = 2; day <= 6; ++day) shown.append(calendar.model->Month().Cell(day).calories);
    EXPECT_EQ(shown.join(u'|'), QString(c.days).replace(" kcal", unit)) << c.NutrientID;
  }
}

TEST_F(CalendarNutrients, NetCaloriesFollowTheWeightThatTheBasalRateGoesBy) {
  calendar.session->settings.NetCaloriesBMR = true;
  Eat("2026-03-03", 2000, 0, 0);
  Exercise("2026-03-03", 103);
  calendar.model->BuildMonth(Day("2026-03-01"));
  EXPECT_EQ(calendar.Cell("2026-03-03").caloriesTip, "2000 eaten - 103 burned = 1897 Cal");
  calendar.Type("2026-03-02", "150");
  const QString withRate = calendar.Cell("2026-03-03").calories;
  EXPECT_EQ(withRate, "449 Cal");
  EXPECT_EQ(calendar.Cell("2026-03-03").caloriesTip, "2000 eaten - 103 burned - 1448 basal rate = 449 Cal");
  EXPECT_TRUE(calendar.Cell("2026-03-04").caloriesTip.isEmpty());
  calendar.model->BuildMonth(Day("2026-03-01"));
  EXPECT_EQ(calendar.Cell("2026-03-03").calories, withRate);
}

TEST_F(CalendarNutrients, OneDaysFigureIsReadByItself) {
  Eat("2026-03-03", 2000, 0, 0);
  calendar.session->settings.NutrientID = 1;
  calendar.model->BuildMonth(Day("2026-03-01"));
  Eat("2026-03-03", 500, 0, 0);
  Eat("2026-03-04", 300, 0, 0);
  calendar.model->FillCalendarNutrients(Day("2026-03-03"));
  EXPECT_TRUE(calendar.Cell("2026-03-03").calories.startsWith(QStringLiteral("2500")));
  EXPECT_EQ(calendar.Cell("2026-03-04").calories, QString());
  const qint64 before = calendar.session.Data().Counts().statements;
  calendar.model->FillCalendarNutrients(Day("2026-06-03"));
  EXPECT_EQ(calendar.session.Data().Counts().statements, before) << "a day of another month";
}

TEST_F(CalendarNutrients, HiddenFiguresAreNotReadAndAnUnknownNutrientShowsNothing) {
  Eat("2026-03-03", 2000, 0, 0);
  calendar.session->settings.NutrientID = 1;
  calendar.model->BuildMonth(Day("2026-03-01"));
  calendar.session->settings.NutrientID = 77;
  calendar.model->FillCalendarNutrients();
  EXPECT_TRUE(calendar.Cell("2026-03-03").calories.isEmpty());
  calendar.model->SetShowCalories(false);
  EXPECT_FALSE(calendar.Cell("2026-03-03").caloriesVisible);
  const qint64 before = calendar.session.Data().Counts().statements;
  calendar.model->FillCalendarNutrients();
  EXPECT_EQ(calendar.session.Data().Counts().statements, before);
  EXPECT_EQ(calendar.session->store.GetSettingString(settingsRoot, "ShowCalories"), "0");
}

}  // namespace
}  // namespace trimlog
