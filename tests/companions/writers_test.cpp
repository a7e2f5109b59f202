// Everything that writes to the data file without a window: what each announces, and what a person is told when the
// disk refuses. The windows' own failure exits stand with the windows.
#include <gtest/gtest.h>

#include <QDir>

#include "catalogs/food_catalog.h"
#include "catalogs/nutrient_selection.h"
#include "companions/wizard_finish.h"
#include "companions/wizard_nutrients.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/passwords.h"
#include "core/profiles/person.h"
#include "core/profiles/profiles.h"
#include "core/profiles/sample_profiles.h"
#include "core/session/failure_guard.h"
#include "support/heard_changes.h"
#include "support/test_session.h"
#include "tools/tools_profile.h"
#include "weightlog/calendar_model.h"
#include "weightlog/reward_form.h"

namespace trimlog {
namespace {

FoodRecord Food(int mealID) {
  FoodRecord food;
  food.MealID = mealID;
  food.MealDesc = "Zzz";
  food.MealGroupID = 1;
  return food;
}

WizardAnswers Answers() {
  WizardAnswers answers;
  answers.person.PersonName = "Ann";
  answers.person.HeightFeet = 5;
  answers.person.HeightInches = 6;
  answers.person.BirthDate = QDate(1990, 1, 1);
  answers.person.Goal = 150;
  answers.startingWeight = 180;
  answers.startingDate = QDate(2026, 2, 28);
  return answers;
}

void TypeWeight(TestSession &session) {
  session->profile.rewards.type = RewardType::Never;
  CalendarModel calendar(*session);
  calendar.Load();
  calendar.GotoCalendarDate(QDate(2026, 3, 1));
  calendar.EnterCell(calendar.Month().currentIndex);
  calendar.SaveWeight("182.5");
}

void SaveRewards(TestSession &session) {
  RewardForm form = ReadRewardForm(*session);
  form.message = "Well done";
  SaveRewardForm(*session, form);
}

struct Writer {
  const char *what;
  std::function<void(TestSession &)> act;
  const char *told;                 ///< what is announced, as HeardChanges has it
  const char *asked = nullptr;      ///< the box before it, answered with Yes
  const char *success = nullptr;    ///< the title of the box that follows
  const char *title = nullptr;      ///< of the box of a failure; nullptr: it is the caller who guards
  const char *text = nullptr;       ///< that box's own text
  const char *procedure = nullptr;  ///< in the log
};

const std::vector<Writer> &Writers() {
  static const std::vector<Writer> writers = {
      {"a typed weight", TypeWeight, "statistics; statistics; weight_loss person 1 2026-03-01", nullptr, nullptr,
       "Error Saving Data", "An error occurred while saving your data for this day.", "frmData, txtData_LostFocus"},
      {"rewards", SaveRewards, "rewards 1 person 1", nullptr, nullptr, "Error Saving Data",
       "An error occurred while saving your reward settings.", "frmSetup, cmdOK_Click"},
      {"a colour", [](TestSession &s) { StoreBackColor(*s, "1", 0xE0FFE0); }, "people 1; settings", nullptr,
       "Color Scheme Changed.", "Error Saving Data", "An error occurred while saving your color scheme.",
       "frmSetup, cboBackColor_Click"},
      {"another's colour", [](TestSession &s) { StoreBackColor(*s, "2", 0xE0FFE0); }, "people 2", nullptr,
       "Color Scheme Changed.", "Error Saving Data", "An error occurred while saving your color scheme.",
       "frmSetup, cboBackColor_Click"},
      {"a password",
       [](TestSession &s) {
         ChangePassword(*s, "2", {"", "secret", "secret"});
       },
       "people 2", nullptr, "Password Changed", "Error Changing Password",
       "An error occurred while changing your password.  ", "frmEditPassword, cmdOK_Click"},
      {"deleting all weights", [](TestSession &s) { ResetWeightLossData(*s); }, "weight_loss person 1; notes person 1",
       "Reset Weight Loss Data", "", "Reset Weight Loss Data",
       "An error occurred while deleting the weight loss data.  ", "frmMDI, mnuEditOtherReset_Click"},
      {"a sample", [](TestSession &s) { ResetSampleProfile(*s, sampleProfile1); },
       "activities person -2; meals person -2; notes person -2; measurements person -2; weight_loss person -2", nullptr,
       nullptr, "Error Reseting Data", "An error occurred while resetting the sample data.  ",
       "basMain, ResetSampleProfile"},
      {"a profile", [](TestSession &s) { AddPerson(*s, {.PersonName = "Zoe"}); }, "people 10"},
      {"the goal's way", [](TestSession &s) { SaveGoalMethod(*s, GoalMethod::ByRate, QDate(2026, 8, 1), "1.5"); },
       "people 1"},
      {"a new food", [](TestSession &s) { AddFood(*s, Food(0)); }, "meals_list 8792"},
      {"a changed food", [](TestSession &s) { SaveFood(*s, Food(10)); }, "meals_list 10"},
      {"a copied food", [](TestSession &s) { CopyFood(*s, 10); }, "meals_list 8792"},
      {"pasted foods",
       [](TestSession &s) {
         PasteFoods(*s, {{{"MealDesc", "A"}}, {{"MealDesc", "B"}}});
       },
       "meals_list 8792 8793"},
      {"the shown nutrients", [](TestSession &s) { SaveNutrientSelection(*s, ReadNutrientSelection(*s)); },
       "selected_nutrients 1"},
      {"the wizard",
       [](TestSession &s) {
         FillWizardNutrients(*s, Answers());
         FinishWizard(*s, Answers(), WizardMode::FirstRun);
       },
       "people 10; weight_loss person 10 2026-02-28; nutrition_targets 2; selected_nutrients 1"},
      {"the wizard for one more", [](TestSession &s) { FinishWizard(*s, Answers(), WizardMode::AddingProfile); },
       "people 10; weight_loss person 10 2026-02-28"},
      {"the administrator",
       [](TestSession &s) {
         s->edition.BizEd = true;
         CreateAdminProfile(*s);
       },
       "people; weight_loss"}};
  return writers;
}

class WritersTest : public ::testing::Test {
 protected:
  /// Person 9 with a weight, a note and a reward, the food beside those that are written, and another target set: what
  /// no writer may touch.
  static QString Bystanders(TestSession &session) {
    return session.Rows("SELECT people.* FROM people WHERE PersonID=9;") +
           session.Rows("SELECT ThisWeight, ThisLoss FROM weight_loss WHERE PersonID=9;") +
           session.Rows("SELECT Notes FROM notes WHERE PersonID=9;") +
           session.Rows("SELECT rewards.* FROM rewards WHERE PersonID=9;") +
           session.Rows("SELECT meals_list.* FROM meals_list WHERE MealID=11;") +
           session.Rows("SELECT nutrition_targets.* FROM nutrition_targets WHERE TargetID=101;") +
           session.Rows("SELECT selected_nutrients.* FROM selected_nutrients WHERE PersonID<>1;");
  }
  static void Prepare(TestSession &session, const Writer &writer) {
    session.AddProfile(9, "Cid");
    session.Weigh(QDate(2026, 3, 2), 160, 9);
    session.Data().Execute(
        "INSERT INTO notes ( PersonID, RecordID, ThisDate, Notes ) VALUES ( 9, 1, #3/1/2026#, \"n\" );");
    session.Data().Execute("INSERT INTO rewards ( PersonID, RewardType, RewardWeight ) VALUES ( 9, 1, 7 );");
    session.AddProfile(2, "Ann");
    if (writer.asked) session.boxes.Expect(writer.asked, "Are you sure you want to continue?", BoxButton::Yes);
  }
};

TEST_F(WritersTest, EachAnnouncesWhatItWroteAndTouchesNothingElse) {
  for (const Writer &writer : Writers()) {
    SCOPED_TRACE(writer.what);
    TestSession session;
    Prepare(session, writer);
    if (writer.success) session.boxes.Expect(writer.success, "");
    HeardChanges heard(*session);
    const QString before = Bystanders(session);
    writer.act(session);
    EXPECT_EQ(heard.Take(), writer.told);
    EXPECT_EQ(Bystanders(session), before);
    EXPECT_TRUE(session.LogLines().isEmpty());
  }
}

TEST_F(WritersTest, EachTellsAFailureLogsItAndAnnouncesNothing) {
  for (const Writer &writer : Writers()) {
    SCOPED_TRACE(writer.what);
    TestSession session;
    Prepare(session, writer);
    HeardChanges heard(*session);
    QFile::rename(session->DataFilePath(), session->DataFilePath() + ".away");
    if (writer.title) {
      session.boxes.Expect(writer.title, writer.text);
      writer.act(session);
      ASSERT_EQ(session.LogLines().size(), 1);
      EXPECT_TRUE(session.LogLines().front().contains(QString(" - ") + writer.procedure + ", "))
          << session.LogLines().front().toStdString();
      const QString shown = session.boxes.Shown().back().text;
      EXPECT_TRUE(shown.startsWith(writer.text)) << shown.toStdString();
      EXPECT_TRUE(shown.contains("Please put the file back in its place and try again.")) << shown.toStdString();
    } else {
      const std::optional<Failure> failure = FailureOf([&] { writer.act(session); });
      EXPECT_TRUE(failure && failure->number == error_number::fileMoved);
    }
    EXPECT_FALSE(QString::fromStdString(heard.Take()).contains(QRegularExpression("[a-z]+_|people|rewards")));
  }
}

}  // namespace
}  // namespace trimlog
