#include "weightlog/rewards.h"

#include <gtest/gtest.h>

#include "typed_calendar.h"
#include "weightlog/weight_statistics.h"

namespace trimlog {
namespace {

// March 2026 starts on a Sunday: the 7th and the 14th are Saturdays.
TEST(Rewards, FollowTheirRule) {
  struct Case {
    const char *why;
    RewardType type;
    double amount;
    const char *typed;  // before the last one, which is judged
    const char *last;
    const char *text = "";  // "" for no reward
    int UomID = 1;
    int LossFactor = 1;
  };
  using enum RewardType;
  const char *const firstWeek = "03-01 200, 03-04 197";
  const char *const wholeWeek = "03-01 200, 03-04 197, 03-07 196";
  const QMap<RewardType, QString> titles = {
      {PersonalWeight, "Personal Reward Weight Reached!"}, {Daily, "Daily Reward"}, {Weekly, "Weekly Reward"}};
  for (const Case &c : std::initializer_list<Case>{
           {"never", Never, 1, "03-01 200", "03-02 150"},
           {"target crossed", PersonalWeight, 190, "03-05 191", "03-06 189.5", "You have made it to 189.5 pounds!"},
           {"exactly it", PersonalWeight, 90, "03-05 91", "03-06 90", "You have made it to 90 kg!", 2},
           {"still above", PersonalWeight, 190, "03-05 195", "03-06 190.5"},
           {"already there this week", PersonalWeight, 190, "03-04 190, 03-05 191", "03-06 189"},
           {"no weight in seven days", PersonalWeight, 190, "03-01 195", "03-09 189"},
           {"one seven days ago", PersonalWeight, 190, "03-01 195", "03-08 189", "You have made it to 189 pounds!"},
           {"more than one", Daily, 0.5, "03-01 200", "03-02 198.5",
            "You have lost 1.5 pounds since you last weighed-in!"},
           {"exactly one", Daily, 1, "03-01 200", "03-02 199", "You have lost 1 pound since you last weighed-in!"},
           {"losses as negative", Daily, 0.25, "03-01 90", "03-02 88", "You have lost 2 kg since you last weighed-in!",
            2, -1},
           {"too little", Daily, 1, "03-01 200", "03-02 199.1"},
           {"gained", Daily, 1, "03-01 200", "03-02 205", "", 1, -1},
           {"on Saturday", Weekly, 2, firstWeek, "03-07 196", "You lost 4 pounds this week!"},
           {"second weigh-in of the week", Weekly, 2, "03-01 200", "03-04 197"},
           {"first one after the week", Weekly, 2, firstWeek, "03-09 199", "You lost 3 pounds last week!"},
           {"after a week of too little", Weekly, 3.5, firstWeek, "03-09 190"},
           {"Saturday had its turn", Weekly, 2, wholeWeek, "03-08 195"},
           {"weekly as negative", Weekly, 2, firstWeek, "03-09 199", "You lost 3 pounds last week!", 1, -1},
           {"a removed weight", Daily, -100, "03-01 200", "03-01 "}}) {
    SCOPED_TRACE(c.why);
    TypedCalendar calendar;
    calendar.session->settings.UomID = c.UomID;
    calendar.session->settings.LossFactor = c.LossFactor;
    calendar.session->profile.rewards = {c.type, c.amount, "Well done", "/tada.wav"};
    ASSERT_TRUE(calendar.TypeAll(c.typed));
    calendar.model->TakeReward();
    ASSERT_TRUE(calendar.TypeAll(c.last));
    const std::optional<RewardNotice> reward = calendar.model->TakeReward();
    EXPECT_EQ(reward ? reward->title : QString(), *c.text ? titles[c.type] : QString());
    EXPECT_EQ(reward ? reward->text : QString(), c.text);
    EXPECT_EQ(reward ? reward->message : "Well done", "Well done");
    EXPECT_FALSE(calendar.model->TakeReward());
    calendar.TypeAll(c.last);  // the same weight again is no achievement
    EXPECT_FALSE(calendar.model->TakeReward());
  }
}

TEST(Rewards, AreSuppressedUntilACellIsEnteredAgain) {
  TypedCalendar calendar;
  calendar.session->profile.rewards = {RewardType::Daily, 1, {}, {}};
  calendar.Type("2026-03-01", "200");
  calendar.model->GotoCalendarDate(Day("2026-03-02"));
  calendar.model->EnterCell(calendar.model->Month().currentIndex);
  calendar.session->windows.SuppressReward = true;
  ASSERT_TRUE(calendar.model->SaveWeight("195"));
  EXPECT_FALSE(calendar.model->TakeReward());
  ASSERT_TRUE(calendar.Type("2026-03-02", "194"));
  EXPECT_TRUE(calendar.model->TakeReward());
}

TEST(Rewards, DefaultRuleIsStoredForAProfileWithoutOne) {
  TestSession session;
  LoadRewardSettings(*session);
  EXPECT_EQ(session->profile.rewards.type, RewardType::Weekly);
  EXPECT_EQ(session.ValueOf("RewardWeight", "rewards", "PersonID=1"), "2");
  EXPECT_EQ(session.ValueOf("RewardMessage", "rewards", "PersonID=1"),
            "Great job!  You're one step closer to that ideal weight!");
  EXPECT_TRUE(session->profile.rewards.sound.endsWith("WellDone.wav"));

  session->profile.CurrentPersonID = "77";  // nobody yet: the wizard has still to write the profile
  LoadRewardSettings(*session);
  EXPECT_EQ(session.ValueOf("PersonID", "rewards", "PersonID=77"), QString());
}

TEST(Rewards, RuleSurvivesSavingAndLoading) {
  TestSession session;
  LoadRewardSettings(*session);
  SaveRewardSettings(*session, {RewardType::PersonalWeight, 149.5, "Say \"yes\"; it's O'Brien's", "/a \"b\"/c.wav"});
  LoadRewardSettings(*session);
  EXPECT_EQ(session->profile.rewards.type, RewardType::PersonalWeight);
  EXPECT_EQ(session->profile.rewards.amount, 149.5);
  EXPECT_EQ(session->profile.rewards.message, "Say ''yes''; it's O'Brien's");
  EXPECT_EQ(session->profile.rewards.sound, "/a \"b\"/c.wav");
}

TEST(Rewards, TellTheDistanceLeft) {
  TestSession session;
  for (const auto &[left, UomID, text] :
       {std::tuple{"12.5", 1, "12.5 pounds to go!"}, std::tuple{"7", 2, "7 kg to go!"},
        std::tuple{"0", 1, "Goal Achieved!"}, std::tuple{"-3", 2, "Goal Achieved!"}, std::tuple{"---", 1, ""}}) {
    session->profile.statistics.LbsLeft = left;
    session->settings.UomID = UomID;
    EXPECT_EQ(RewardDistanceText(*session), text);
  }
}

}  // namespace
}  // namespace trimlog
