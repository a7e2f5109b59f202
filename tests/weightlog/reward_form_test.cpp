#include "weightlog/reward_form.h"

#include <gtest/gtest.h>

#include "support/test_session.h"
#include "weightlog/rewards.h"

namespace trimlog {
namespace {

TEST(RewardForm, OnlyDefaultsFollowTheUnitSystem) {
  struct Case {
    const char *daily, *weekly;
    int uomID;
    const char *dailyAfter, *weeklyAfter;
  };
  const Case cases[] = {{"0.5", "2.0", 2, "0.25", "0.9"}, {"0.25", "0.9", 1, "0.5", "2.0"},
                        {"0.50", "2", 2, "0.25", "0.9"},  {"0.6", "2.1", 2, "0.6", "2.1"},
                        {"2.0", "0.5", 2, "2.0", "0.5"},  {"", "x", 2, "", "x"},
                        {"0.25", "0.9", 2, "0.25", "0.9"}};
  for (const Case &row : cases) {
    RewardForm form;
    form.daily = row.daily;
    form.weekly = row.weekly;
    form.weight = "2.0";
    SwapRewardDefaults(form, row.uomID, QLocale::c());
    EXPECT_EQ(form.daily.toStdString(), row.dailyAfter) << row.daily << " to " << row.uomID;
    EXPECT_EQ(form.weekly.toStdString(), row.weeklyAfter) << row.weekly << " to " << row.uomID;
    EXPECT_EQ(form.weight, "2.0");
  }
  RewardForm german;
  german.daily = "0,5";
  SwapRewardDefaults(german, 2, QLocale(QLocale::German));
  EXPECT_EQ(german.daily, "0,25");
}

TEST(RewardForm, AnEmptyFieldBeginsWithDefaultOrGoal) {
  TestSession session;
  EXPECT_EQ(ProposedAmount(*session, RewardType::Daily, 1), "0.5");
  EXPECT_EQ(ProposedAmount(*session, RewardType::Weekly, 2), "0.9");
  EXPECT_EQ(ProposedAmount(*session, RewardType::PersonalWeight, 2), "150");
}

TEST(RewardForm, StoresTheChosenTypeWithItsOwnAmount) {
  struct Case {
    RewardType type;
    double amount;
  };
  for (const Case &row : {Case{RewardType::Never, 0},
                          {RewardType::PersonalWeight, 140.5},
                          {RewardType::Daily, 0.75},
                          {RewardType::Weekly, 1.5}}) {
    TestSession session{QLocale(QLocale::German, QLocale::Germany)};
    LoadRewardSettings(*session);
    RewardForm form{row.type, "0,75", "1,5", "140,5", "\"Bravo\"", "/tmp/my \"bell\".wav"};
    ASSERT_TRUE(CheckRewardForm(*session, form));
    ASSERT_TRUE(SaveRewardForm(*session, form));
    LoadRewardSettings(*session);
    EXPECT_EQ(session->profile.rewards.type, row.type);
    EXPECT_DOUBLE_EQ(session->profile.rewards.amount, row.amount);
    EXPECT_EQ(session->profile.rewards.message, "''Bravo''");
    EXPECT_EQ(session->profile.rewards.sound, "/tmp/my \"bell\".wav");
    RewardForm again = ReadRewardForm(*session);
    if (QString *amount = again.AmountOf(row.type)) {
      EXPECT_EQ(amount->toStdString(), form.AmountOf(row.type)->toStdString());
    }
  }
}

TEST(RewardForm, ASaveThatFailsSaysSoAndKeepsTheRule) {
  TestSession session;
  LoadRewardSettings(*session);
  session.Data().Execute("ALTER TABLE rewards RENAME COLUMN RewardSound TO Hidden;");
  session.boxes.Expect("Error Saving Data", "An error occurred while saving your reward settings.");
  RewardForm form;
  EXPECT_FALSE(SaveRewardForm(*session, form));
  EXPECT_EQ(session->profile.rewards.type, RewardType::Weekly);
}

TEST(RewardForm, RefusesAnAmountThatIsNone) {
  for (const char *amount : {"", "0", "-1", "two", "1e309"}) {
    TestSession session;
    RewardForm form;
    form.type = RewardType::Weekly;
    form.daily = "1";
    form.weekly = amount;
    session.boxes.Expect("Invalid Reward Amount", "positive number");
    EXPECT_FALSE(CheckRewardForm(*session, form)) << amount;
    form.type = RewardType::Never;
    EXPECT_TRUE(CheckRewardForm(*session, form)) << amount;
  }
}

}  // namespace
}  // namespace trimlog
