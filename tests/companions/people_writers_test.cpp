// What writers of people's data leave alone, and what they do all or not at all.
#include <gtest/gtest.h>

#include "companions/wizard_finish.h"
#include "companions/wizard_nutrients.h"
#include "core/profiles/goal.h"
#include "core/profiles/profiles.h"
#include "core/session/change.h"
#include "core/settings/options.h"
#include "support/heard_changes.h"
#include "support/test_session.h"
#include "tools/tools_profile.h"
#include "weightlog/reward_form.h"
#include "weightlog/weight_statistics.h"

namespace trimlog {
namespace {

const QDate today(2026, 3, 1);

WizardAnswers NewcomersAnswers() {
  WizardAnswers answers;
  answers.person = {.PersonName = "Bo", .Goal = 140};
  answers.startingWeight = 180;
  answers.startingDate = today;
  return answers;
}

TEST(PeopleWriters, SettingsAreAnnouncedAndAnUnchangedGoalMethodIsNot) {
  TestSession session;
  HeardChanges heard(*session);
  StoreOptions(*session, session->settings);
  EXPECT_EQ(heard.Take(), "settings");
  StoreLossFactor(*session, -1);
  EXPECT_EQ(heard.Take(), "settings");
  const ToolsProfile stored = ReadToolsProfile(*session);
  SaveGoalMethod(*session, stored.method, stored.GoalMethodDate, stored.GoalMethodLbsWeek);
  EXPECT_EQ(heard.Take(), "");
  FinishWizard(*session, NewcomersAnswers(), WizardMode::CompletingProfile);
  EXPECT_EQ(heard.Take(), "people 1; weight_loss person 1 2026-03-01");
}

TEST(PeopleWriters, AResetDeletesAllOrNothing) {
  TestSession session;
  session.Weigh(today, 180);
  session.Data().Execute("DROP TABLE notes;");
  session.boxes.Expect("Reset Weight Loss Data", "cannot get it back", BoxButton::Yes);
  session.boxes.Expect("Reset Weight Loss Data", "An error occurred while deleting");
  EXPECT_FALSE(ResetWeightLossData(*session));
  EXPECT_EQ(session.Rows("SELECT ThisWeight FROM weight_loss WHERE PersonID=1;"), "180");
}

TEST(PeopleWriters, TheWizardsEndReachesMemoryOnlyWithTheCommit) {
  TestSession session;
  session.Data().Execute("DELETE people.*, people.PersonID FROM people WHERE (people.PersonID > 0);");
  WizardAnswers answers = NewcomersAnswers();
  answers.diet = "108";
  answers.nutrientID = 15;
  FillWizardNutrients(*session, answers);
  FillSelectedNutrientsArray(session->nutrients, session.Data());
  const int shown = session->nutrients.SelectedNutrients[0].NutrientID;
  HeardChanges heard(*session);
  {
    Change outer(*session);
    FinishWizard(*session, answers, WizardMode::FirstRun);
  }  // taken back
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].NutrientID, shown);
  EXPECT_EQ(session->settings.NutrientID, 102);
  EXPECT_EQ(heard.Take(), "");
  FinishWizard(*session, answers, WizardMode::FirstRun);
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].NutrientID, 15);
  EXPECT_EQ(session->settings.NutrientID, 15);
}

TEST(KeptGoal, CountsAsItIsShown) {
  TestSession session;
  session.Data().Execute("UPDATE people SET Goal=\"150,5\" WHERE (PersonID=1);");
  session.Weigh(today, 180);
  UpdateStats(*session);
  EXPECT_EQ(session->profile.statistics.LbsLeft, "29.5");
  for (const QString &shown : {ReadGoalText(*session), ReadToolsProfile(*session).Goal,
                               ProposedAmount(*session, RewardType::PersonalWeight, 1)}) {
    EXPECT_EQ(shown, "150.5");
  }
}

}  // namespace
}  // namespace trimlog
