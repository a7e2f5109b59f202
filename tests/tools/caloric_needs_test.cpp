#include "tools/caloric_needs.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/locales.h"

namespace trimlog {
namespace {

const QDate today(2026, 3, 1);

ToolsProfile Woman() {
  ToolsProfile profile;
  profile.body = {2, QDate(1990, 6, 1), 5, 6};
  profile.currentWeight = DatedWeight{QDate(2026, 2, 10), 150};
  return profile;
}

std::string FailureOf(const CaloricQuestion &question, const ToolsProfile &profile) {
  try {
    EstimateCaloricNeeds(question, profile, 1, today, us);
  } catch (const Error &error) {
    return error.Description().toStdString();
  }
  return {};
}

TEST(CaloricNeedsEstimate, MultipliesTheBasalRateByActivity) {
  // 35 by her birthday, 36 by the calendar years: 650.6623 + 655.1 + 310.134 - 36 x 4.676 = 1447.5603
  const CaloricNeeds current = EstimateCaloricNeeds({}, Woman(), 1, today, us);
  EXPECT_EQ(current.bmr, "1448 calories.");
  EXPECT_EQ(current.perDay[0], "1954 calories");  // x 1.35 = 1954.206
  EXPECT_EQ(current.perDay[1], "2287 calories");  // x 1.58 = 2287.145
  EXPECT_EQ(current.perDay[2], "2750 calories");  // x 1.9  = 2750.365, not 1448 x 1.9 = 2751.2
  // 130 lbs at 35: 130 x 9.563 / 2.2046 = 563.9073; + 655.1 + 310.134 - 163.66 = 1365.4813
  const CaloricNeeds goal = EstimateCaloricNeeds({true, "130", true, "35"}, Woman(), 1, today, us);
  EXPECT_EQ(goal.bmr, "1365 calories.");
  // 1 m 80, 80 kg, a man of 0 years: 1100 + 66.5 + 900.54 = 2067.04
  ToolsProfile man = Woman();
  man.body = {1, QDate(1990, 6, 1), 1, 80};
  man.currentWeight->ThisWeight = 80;
  EXPECT_EQ(EstimateCaloricNeeds({false, {}, true, "0"}, man, 2, today, us).bmr, "2067 calories.");
  // Beyond four digits: 99,999 lbs make 623,690 calories.
  EXPECT_EQ(EstimateCaloricNeeds(
                {true, "99999", true, "36"},
                [] {
                  ToolsProfile heavy = Woman();
                  heavy.body.GenderID = 1;
                  return heavy;
                }(),
                1, today, us)
                .bmr.length(),
            QStringLiteral("624355 calories.").length());
}

TEST(CaloricNeedsEstimate, SaysWhatIsMissing) {
  ToolsProfile noWeight = Woman();
  noWeight.currentWeight.reset();
  EXPECT_EQ(FailureOf({}, noWeight), "Please record a weight in the Data Calendar first.");
  EXPECT_EQ(FailureOf({true, "150", false, {}}, noWeight), "");
  ToolsProfile noBirthDate = Woman();
  noBirthDate.body.BirthDate = {};
  EXPECT_EQ(FailureOf({}, noBirthDate), "Please enter your birth date in your Profile setup first.");
  EXPECT_EQ(FailureOf({false, {}, true, "40"}, noBirthDate), "");
  ToolsProfile noHeight = Woman();
  noHeight.body.HeightFeet = noHeight.body.HeightInches = 0;
  EXPECT_EQ(FailureOf({}, noHeight), "Please enter your height in your Profile setup first.");
  EXPECT_EQ(FailureOf({true, "x", false, {}}, Woman()), "Please enter a numeric value for your goal weight.");
  EXPECT_EQ(FailureOf({false, {}, true, "forty"}, Woman()), "Please enter a numeric value for the age.");
  EXPECT_NE(FailureOf({false, {}, true, "99999"}, Woman()), "") << "beyond the 16-bit range";
}

TEST(CaloricNeedsSummary, WordForWord) {
  const CaloricNeeds needs{"1448 calories.", {"1954 calories", "2287 calories", "2750 calories"}};
  EXPECT_EQ(
      SummarizeCaloricNeeds(needs, 0, false),
      "With a light activity level you will need to consume 1954 calories per day to maintain your current weight.  "
      "If you're trying to lose weight by cutting calories, a healthy idea would be to consume less than 1954 "
      "calories without going much less than your BMR of 1448 calories, or your metabolism may slow down as a "
      "result.  In addition, most experts agree that 500-1000 calories per day is the most you can safely cut from "
      "your diet.");
  EXPECT_EQ(
      SummarizeCaloricNeeds(needs, 2, true),
      "If you can maintain a heavy activity level you'll need to consume 2750 calories each day to maintain your "
      "goal weight.  If you're trying to lose weight by cutting your calories, this doesn't necessarily mean that "
      "2750 calories should be your goal right now.  Most experts agree that 500-1000 calories per day is the most "
      "you can safely cut from your diet.  In any case, try not to go much less than your BMR of 1448 calories or "
      "this may slow your metabolism and make it harder to burn fat.");
  EXPECT_TRUE(SummarizeCaloricNeeds(needs, 1, false).startsWith("With a moderate level of activity you will need"));
  EXPECT_EQ(SummarizeCaloricNeeds({}, 1, false), "") << "nothing calculated yet";
}

}  // namespace
}  // namespace trimlog
