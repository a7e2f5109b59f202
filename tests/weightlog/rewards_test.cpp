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
    std::vector<Typed> typed;  // the last one is judged
    const char *title;         // "" for no reward
    const char *text;
    int UomID = 1;
    int LossFactor = 1;
  };
  const std::vector<Typed> lostInFirstWeek{{"2026-03-01", "200"}, {"2026-03-04", "197"}};
  const auto then = [](std::vector<Typed> typed, const Typed &last) {
    typed.push_back(last);
    return typed;
  };
  for (const Case &c : {
           Case{"never", RewardType::Never, 1, {{"2026-03-01", "200"}, {"2026-03-02", "150"}}, "", ""},

           Case{"target crossed",
                RewardType::PersonalWeight,
                190,
                {{"2026-03-05", "191"}, {"2026-03-06", "189.5"}},
                "Personal Reward Weight Reached!",
                "You have made it to 189.5 pounds!"},
           Case{"exactly the target, in kilograms",
                RewardType::PersonalWeight,
                90,
                {{"2026-03-05", "91"}, {"2026-03-06", "90"}},
                "Personal Reward Weight Reached!",
                "You have made it to 90 kg!",
                2},
           Case{"still above",
                RewardType::PersonalWeight,
                190,
                {{"2026-03-05", "195"}, {"2026-03-06", "190.5"}},
                "",
                ""},
           Case{"already there this week",
                RewardType::PersonalWeight,
                190,
                {{"2026-03-04", "190"}, {"2026-03-05", "191"}, {"2026-03-06", "189"}},
                "",
                ""},
           Case{"no weight in seven days",
                RewardType::PersonalWeight,
                190,
                {{"2026-03-01", "195"}, {"2026-03-09", "189"}},
                "",
                ""},
           Case{"a weight seven days ago",
                RewardType::PersonalWeight,
                190,
                {{"2026-03-01", "195"}, {"2026-03-08", "189"}},
                "Personal Reward Weight Reached!",
                "You have made it to 189 pounds!"},

           Case{"daily, more than one",
                RewardType::Daily,
                0.5,
                {{"2026-03-01", "200"}, {"2026-03-02", "198.5"}},
                "Daily Reward",
                "You have lost 1.5 pounds since you last weighed-in!"},
           Case{"daily, exactly one",
                RewardType::Daily,
                1,
                {{"2026-03-01", "200"}, {"2026-03-02", "199"}},
                "Daily Reward",
                "You have lost 1 pound since you last weighed-in!"},
           Case{"daily, in kilograms with losses as negative",
                RewardType::Daily,
                0.25,
                {{"2026-03-01", "90"}, {"2026-03-02", "88"}},
                "Daily Reward",
                "You have lost 2 kg since you last weighed-in!",
                2,
                -1},
           Case{"daily, too little", RewardType::Daily, 1, {{"2026-03-01", "200"}, {"2026-03-02", "199.1"}}, "", ""},
           Case{"daily, gained with losses as negative",
                RewardType::Daily,
                1,
                {{"2026-03-01", "200"}, {"2026-03-02", "205"}},
                "",
                "",
                1,
                -1},

           Case{"weekly, on Saturday", RewardType::Weekly, 2, then(lostInFirstWeek, {"2026-03-07", "196"}),
                "Weekly Reward", "You lost 4 pounds this week!"},
           Case{"weekly, second weigh-in of the week", RewardType::Weekly, 2, lostInFirstWeek, "", ""},
           Case{"weekly, first weigh-in after the week", RewardType::Weekly, 2,
                then(lostInFirstWeek, {"2026-03-09", "199"}), "Weekly Reward", "You lost 3 pounds last week!"},
           Case{"weekly, after a week that lost too little", RewardType::Weekly, 3.5,
                then(lostInFirstWeek, {"2026-03-09", "190"}), "", ""},
           Case{"weekly, Saturday had its turn", RewardType::Weekly, 2,
                then(then(lostInFirstWeek, {"2026-03-07", "196"}), {"2026-03-08", "195"}), "", ""},
           Case{"weekly, with losses as negative", RewardType::Weekly, 2, then(lostInFirstWeek, {"2026-03-09", "199"}),
                "Weekly Reward", "You lost 3 pounds last week!", 1, -1},
           Case{"a removed weight", RewardType::Daily, -100, {{"2026-03-01", "200"}, {"2026-03-01", ""}}, "", ""},
       }) {
    SCOPED_TRACE(c.why);
    TypedCalendar calendar;
    calendar.session->settings.UomID = c.UomID;
    calendar.session->settings.LossFactor = c.LossFactor;
    calendar.session->profile.rewards = {c.type, c.amount, QStringLiteral("Well done"), QStringLiteral("/tada.wav")};
    for (size_t n = 0; n < c.typed.size(); ++n) {
      calendar.model->TakeReward();
      ASSERT_TRUE(calendar.Type(c.typed[n].date, c.typed[n].text));
    }
    const std::optional<RewardNotice> reward = calendar.model->TakeReward();
    EXPECT_EQ(reward ? reward->title : QString(), QLatin1String(c.title));
    EXPECT_EQ(reward ? reward->text : QString(), QLatin1String(c.text));
    EXPECT_EQ(reward ? reward->message : QStringLiteral("Well done"), QStringLiteral("Well done"));
    EXPECT_FALSE(calendar.model->TakeReward());

    // The same weight again is no achievement.
    calendar.Type(c.typed.back().date, c.typed.back().text);
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
  ASSERT_TRUE(calendar.model->SaveWeight(QStringLiteral("195")));
  EXPECT_FALSE(calendar.model->TakeReward());
  ASSERT_TRUE(calendar.Type("2026-03-02", "194"));
  EXPECT_TRUE(calendar.model->TakeReward());
}

TEST(Rewards, DefaultRuleIsStoredForAProfileWithoutOne) {
  TestSession session;
  LoadRewardSettings(*session);
  EXPECT_EQ(session->profile.rewards.type, RewardType::Weekly);
  EXPECT_EQ(session.ValueOf(QStringLiteral("RewardWeight"), QStringLiteral("rewards"), QStringLiteral("PersonID=1")),
            QStringLiteral("2"));
  EXPECT_EQ(session.ValueOf(QStringLiteral("RewardMessage"), QStringLiteral("rewards"), QStringLiteral("PersonID=1")),
            QStringLiteral("Great job!  You're one step closer to that ideal weight!"));
  EXPECT_TRUE(session->profile.rewards.sound.endsWith(QStringLiteral("WellDone.wav")));

  session->profile.CurrentPersonID = QStringLiteral("77");  // nobody yet: the wizard has still to write the profile
  LoadRewardSettings(*session);
  EXPECT_EQ(session.ValueOf(QStringLiteral("PersonID"), QStringLiteral("rewards"), QStringLiteral("PersonID=77")),
            QString());
}

TEST(Rewards, RuleSurvivesSavingAndLoading) {
  TestSession session;
  LoadRewardSettings(*session);
  SaveRewardSettings(*session, {RewardType::PersonalWeight, 149.5, QStringLiteral("Say \"yes\"; it's O'Brien's"),
                                QStringLiteral("/a \"b\"/c.wav")});
  LoadRewardSettings(*session);
  EXPECT_EQ(session->profile.rewards.type, RewardType::PersonalWeight);
  EXPECT_EQ(session->profile.rewards.amount, 149.5);
  EXPECT_EQ(session->profile.rewards.message, QStringLiteral("Say ''yes''; it's O'Brien's"));
  EXPECT_EQ(session->profile.rewards.sound, QStringLiteral("/a \"b\"/c.wav"));
}

TEST(Rewards, TellTheDistanceLeft) {
  TestSession session;
  for (const auto &[left, UomID, text] :
       {std::tuple{"12.5", 1, "12.5 pounds to go!"}, std::tuple{"7", 2, "7 kg to go!"},
        std::tuple{"0", 1, "Goal Achieved!"}, std::tuple{"-3", 2, "Goal Achieved!"}, std::tuple{"---", 1, ""}}) {
    session->profile.statistics.LbsLeft = QLatin1String(left);
    session->settings.UomID = UomID;
    EXPECT_EQ(RewardDistanceText(*session), QLatin1String(text));
  }
}

}  // namespace
}  // namespace trimlog
