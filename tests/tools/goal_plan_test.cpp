#include "tools/goal_plan.h"

#include <gtest/gtest.h>

#include "support/locales.h"

namespace trimlog {
namespace {

const BodyProfile tall{2, QDate(1990, 1, 1), 5, 6};     // 5 feet 6
const BodyProfile metric{2, QDate(1990, 1, 1), 1, 70};  // 1.70 m
const DatedWeight start{QDate(2026, 2, 2), 170};        // a Monday

GoalPlan ByRate(const char *goal, const char *rate, const std::optional<DatedWeight> &from = start) {
  return PlanGoal({goal, GoalMethod::ByRate, rate, {}, from}, tall, 1, "Lbs", us);
}
GoalPlan ByDate(const char *goal, const char *date, const std::optional<DatedWeight> &from = start) {
  return PlanGoal({goal, GoalMethod::ByDate, {}, date, from}, tall, 1, "Lbs", us);
}
/// What stands before the sentence about the index.
std::string MethodPart(const GoalPlan &plan) {
  return plan.text.section("  Your goal weight's BMI", 0, 0).toStdString();
}

TEST(GoalPlanner, ARateGivesTheDateOfArrival) {
  struct Case {
    const char *goal, *rate, *text;
  };
  const Case cases[] = {
      {"150", "2", "If you can lose 2 lbs/week, you will reach your goal weight on 4/13/2026."},  // 10 weeks
      {"150", "8", "If you can lose 8 lbs/week, you will reach your goal weight on 2/16/2026."},  // 2.5, to the even 2
      {"142", "8", "If you can lose 8 lbs/week, you will reach your goal weight on 3/2/2026."},   // 3.5, to the even 4
      {"150", "7.5", "If you can lose 7.5 lbs/week, you will reach your goal weight on 2/23/2026."},  // 2.67
      {"180", "2",
       "If you can lose 2 lbs/week, you will reach your goal weight on 12/29/2025."},  // a gain: 5 weeks ago
      {"150", "0", "Unable to calculate with the current value of Lbs/Week."},
      {"150", "-1", "Unable to calculate with the current value of Lbs/Week."},
      {"150", "", "Unable to calculate with the current value of Lbs/Week."},
      {"1000000", "1", "Unable to calculate with the current value of Lbs/Week."}};
  for (const Case &c : cases) {
    EXPECT_EQ(MethodPart(ByRate(c.goal, c.rate)), c.text) << c.goal << " at " << c.rate;
  }
  // 20 lbs at 0.0001 a week take 200,000 weeks, 1,400,000 days: 3,833 years on. 50 lbs end beyond the year 9999.
  EXPECT_EQ(MethodPart(ByRate("150", "0.0001")),
            "If you can lose 0.0001 lbs/week, you will reach your goal weight on " +
                us.toString(start.ThisDate.addDays(1400000), "M/d/yyyy").toStdString() + ".");
  EXPECT_EQ(MethodPart(ByRate("120", "0.0001")), "Unable to calculate with the current value of Lbs/Week.");
}

TEST(GoalPlanner, ADateGivesTheRateByCalendarWeeks) {
  struct Case {
    const char *goal, *date, *rate;
  };
  const Case cases[] = {{"150", "4/13/2026", "2.0"},  // 10 Sundays between
                        {"150", "2/7/2026", "20.0"},  // the Saturday of the same week: no boundary, the whole amount
                        {"150", "2/8/2026", "20.0"},  // the Sunday after: one boundary
                        {"150", "2/15/2026", "10.0"},  {"150", "1/26/2026", "-20.0"},  // a week back
                        {"180", "2/15/2026", "-5.0"},                                  // a gain
                        {"169.5", "4/13/2026", "0.1"},                                 // 0.05, away from zero
                        {"170.5", "4/13/2026", "-0.1"}};
  for (const Case &c : cases) {
    EXPECT_EQ(MethodPart(ByDate(c.goal, c.date)), std::string("In order to reach your goal weight by ") + c.date +
                                                      ", you will need to lose " + c.rate + " lbs/week.")
        << c.goal << " by " << c.date;
  }
  // From a Saturday to the next day is one week.
  EXPECT_EQ(MethodPart(ByDate("150", "2/8/2026", DatedWeight{QDate(2026, 2, 7), 170})),
            "In order to reach your goal weight by 2/8/2026, you will need to lose 20.0 lbs/week.");
}

TEST(GoalPlanner, JudgesTheGoalByItsIndex) {
  struct Case {
    const char *goal, *text;
  };
  const QString chart = "According to the BMI chart, a healthy weight for you would be between 130 and 143 Lbs.";
  // At 66 inches a pound is 0.161548 of the index: 114.5 lbs are 18.497, 114.6 are 18.513, and so on.
  const Case cases[] = {
      {"114.5", "18, which indicates that you will be underweight according to some experts."},
      {"114.6", "19, which indicates an ideal situation for your height.  This is a very healthy goal to shoot for!"},
      {"151.6", "24, which indicates an ideal situation for your height.  This is a very healthy goal to shoot for!"},
      {"151.7", "25, which indicates an moderate health risk for your height.  "},
      {"182.6", "29, which indicates an moderate health risk for your height.  "},
      {"182.7", "30, which indicates a severe health risk for your height.  "}};
  for (const Case &c : cases) {
    QString expected = c.text;
    if (expected.endsWith("  ")) expected += chart;
    EXPECT_EQ(ByRate(c.goal, "1").text.section("Your goal weight's BMI is ", 1, 1), expected) << c.goal;
    EXPECT_EQ(ByRate(c.goal, "1").failure, "") << c.goal;
  }
}

TEST(GoalPlanner, SpeaksMetricAndTheLocalesOwnNumbers) {
  const GoalPlan plan =
      PlanGoal({"72,5", GoalMethod::ByRate, "0,5", {}, DatedWeight{QDate(2026, 2, 2), 77.5}}, metric, 2, "Kg", german);
  // 5 kg at 0.5 kg are 10 weeks; 72.5 / 2.89 = 25.09; 21 and 23 x 2.89 = 60.69 and 66.47
  EXPECT_EQ(
      plan.text,
      "If you can lose 0,5 kg/week, you will reach your goal weight on 13.04.2026.  Your goal weight's BMI is 25, "
      "which indicates an moderate health risk for your height.  According to the BMI chart, a healthy weight for "
      "you would be between 61 and 66 Kg.");
}

TEST(GoalPlanner, SaysWhatItCannotCalculate) {
  const std::string noIndex =
      "Your goal weight's BMI cannot be calculated from this weight and the height in your profile.";
  BodyProfile flat = tall;
  flat.HeightFeet = flat.HeightInches = 0;
  const GoalPlan withoutHeight = PlanGoal({"150", GoalMethod::ByRate, "2", {}, start}, flat, 1, "Lbs", us);
  EXPECT_EQ(withoutHeight.text.toStdString(),
            "If you can lose 2 lbs/week, you will reach your goal weight on 4/13/2026.  " + noIndex);
  EXPECT_EQ(withoutHeight.failure.toStdString(), noIndex);
  EXPECT_EQ(ByRate("1e6", "1").failure.toStdString(), noIndex);
  EXPECT_EQ(MethodPart(ByRate("150", "2", std::nullopt)),
            "Unable to calculate without a weight recorded in the Data Calendar.");
  EXPECT_EQ(ByRate("", "2").text, "");
  EXPECT_FALSE(ByRate("", "2").failure.isEmpty());
}

TEST(GoalFields, AreCheckedWhenTheyAreLeft) {
  struct Case {
    std::optional<Box> box;
    const char *title, *text;
  };
  const auto text = [](const char *typed) { return typed; };
  const char *noRate =
      "The lbs/week that you entered is invalid.  Please enter a numeric value for the number of lbs/week you wish to "
      "lose.";
  const char *lowRate =
      "The lbs/week that you entered cannot be zero or negative.  Please enter a positive, nonzero value for the "
      "number of lbs/week you wish to lose.";
  const char *noGoal = "The goal that you entered is invalid.  Please enter a numeric value for your weight loss goal.";
  const char *lowGoal =
      "The goal that you entered is invalid.  Please enter a positive value for your weight loss goal.";
  const char *noDate =
      "The date that you entered is invalid.  Please enter a valid date or choose one using the date button.";
  const Case cases[] = {{CheckGoal(text(""), us), "Invalid Goal", noGoal},
                        {CheckGoal(text("12.3.4"), us), "Invalid Goal", noGoal},
                        {CheckGoal(text("0"), us), "Invalid Goal", lowGoal},
                        {CheckGoal(text("-5"), us), "Invalid Goal", lowGoal},
                        {CheckGoal(text("0.1"), us), nullptr, nullptr},
                        {CheckGoal(text("72,5"), german), nullptr, nullptr},
                        {CheckGoalMethodRate(text("abc"), us), "Invalid lbs/week", noRate},
                        {CheckGoalMethodRate(text(""), us), "Invalid lbs/week", noRate},
                        {CheckGoalMethodRate(text("0"), us), "Invalid lbs/week", lowRate},
                        {CheckGoalMethodRate(text("-0.5"), us), "Invalid lbs/week", lowRate},
                        {CheckGoalMethodRate(text("0.0001"), us), nullptr, nullptr},
                        {CheckGoalMethodDate(text(""), us), "Invalid Date", noDate},
                        {CheckGoalMethodDate(text("2/30/2026"), us), "Invalid Date", noDate},
                        {CheckGoalMethodDate(text("1/1/10000"), us), "Invalid Date", noDate},
                        {CheckGoalMethodDate(text("1/1/1850"), us), nullptr, nullptr}};
  for (size_t i = 0; i < std::size(cases); ++i) {
    ASSERT_EQ(cases[i].box.has_value(), cases[i].title != nullptr) << "case " << i;
    if (!cases[i].box) continue;
    EXPECT_EQ(cases[i].box->title.toStdString(), cases[i].title) << "case " << i;
    EXPECT_EQ(cases[i].box->text.toStdString(), cases[i].text) << "case " << i;
    EXPECT_EQ(cases[i].box->icon, BoxIcon::Critical);
  }
}

TEST(GoalFields, ARateThatIsNoPositiveNumberIsRepaired) {
  EXPECT_EQ(RepairedRate("x", 1, us), "1");
  EXPECT_EQ(RepairedRate("0", 2, us), "0.9");
  EXPECT_EQ(RepairedRate(QString(), 2, german), "0,9");
  EXPECT_EQ(RepairedRate("1.50", 2, us), "1.50") << "as typed";
}

}  // namespace
}  // namespace trimlog
