#include <gtest/gtest.h>

#include "companions/wizard_answers.h"
#include "companions/wizard_finish.h"
#include "companions/wizard_nutrients.h"
#include "companions/wizard_plan.h"
#include "platform/store/recordset.h"
#include "support/locales.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

TEST(WizardPlan, NumbersItsStepsByModeAndScreen) {
  for (const auto &[mode, colors, last] :
       {std::tuple{WizardMode::FirstRun, true, "Your Color Scheme (Step 5 of 5)"},
        {WizardMode::FirstRun, false, "Your Nutrient Selections (Step 4 of 4)"},
        {WizardMode::AddingProfile, true, "Your Weight Information (Step 2 of 2)"},
        {WizardMode::CompletingProfile, true, "Your Weight Information (Step 2 of 2)"}}) {
    const WizardPlan plan(mode, colors);
    EXPECT_EQ(plan.TitleOf(plan.WizardSteps()), last);
    EXPECT_EQ(plan.NextCaption(1) + plan.NextCaption(plan.WizardSteps()), "&Next&Finish");
    EXPECT_THROW(plan.StepAt(plan.WizardSteps() + 1), Error);
  }
}

TEST(WizardFields, AreMendedOnLeaving) {
  EXPECT_EQ(RepairedNumber("abc", english), "0");
  EXPECT_EQ(RepairedNumber("0.99", english), "0");
  EXPECT_EQ(RepairedNumber("93,5", german), "93,5");
  EXPECT_EQ(RepairedHeight2("12", 1, english), "11");
  EXPECT_EQ(RepairedHeight2("12", 2, english), "12");
  EXPECT_EQ(RepairedHeight2("-3", 1, english), "0");
  EXPECT_EQ(RepairedBirthDate("soon", QDate(2024, 2, 29), english), "2/28/1994");
  EXPECT_EQ(RepairedBirthDate("5/6/1990", QDate(2026, 3, 1), english), "5/6/1990");
  EXPECT_EQ(RepairedPersonName("  "), "New Profile");
}

WizardAnswers Height(double height1, double height2, int UomID) {
  WizardAnswers answers;
  answers.person.HeightFeet = height1;
  answers.person.HeightInches = height2;
  answers.UomID = UomID;
  return answers;
}

TEST(WizardFields, TellAHealthyWeightOnlyForAHeight) {
  // By hand: 1.6764 m squared is 2.81032; times 21 and 2.205 is 130.13, times 23 and 2.205 is 142.53.
  EXPECT_TRUE(HealthyWeightText(Height(5, 6, 1), "Lbs").contains("between 130 and 143 Lbs.\n\nPlease note"));
  // 1.78 m squared is 3.1684; times 21 is 66.54, times 23 is 72.87.
  EXPECT_TRUE(HealthyWeightText(Height(1, 78, 2), "Kg").contains("between 67 and 73 Kg."));
  EXPECT_TRUE(HealthyWeightText(Height(0, 178, 2), "Kg").contains("between 67 and 73 Kg.")) << "all in centimetres";
  for (const WizardAnswers &nobody : {Height(0, 0, 1), Height(300, 11, 1), Height(178, 0, 2)}) {
    EXPECT_EQ(HealthyWeightText(nobody, "Lbs"),
              "Please go back and enter your height first.  Your healthy weight range depends on it.");
  }
}

TEST(WizardNutrients, KeepTickAndTargetInStep) {
  struct Case {
    bool tick;
    const char *target;
    QVariantMap typed;
    bool ticked;
    const char *shown;
  };
  const QString tick = "IsModified";
  const QString amount = "Amount";
  const std::vector<Case> cases = {{false, "None", {{tick, true}}, true, "(type a value)"},
                                   {true, "(type a value)", {{tick, false}}, false, "None"},
                                   {true, "20", {{tick, false}}, false, "20"},
                                   {true, "20", {{amount, ""}}, true, "(type a value)"},
                                   {true, "20", {{amount, "none"}}, true, "none"},
                                   {false, "None", {{amount, "20"}}, true, "20"},
                                   {true, "None", {{amount, "20"}}, true, "20"},
                                   {false, "None", {{amount, ""}}, false, "None"}};
  for (const Case &c : cases) {
    GridRowEdit row(1, false, [&](const QString &field) { return field == tick ? Value(c.tick) : Value(c.target); });
    for (auto typed = c.typed.begin(); typed != c.typed.end(); ++typed) row.Set(typed.key(), typed.value());
    MatchTickAndTarget(row);
    EXPECT_EQ(row.Get(tick).toBool(), c.ticked) << c.target;
    EXPECT_EQ(row.Get(amount).toString(), c.shown) << c.target;
  }
  for (const char *fine : {"", "None", "(type a value)", "0", "1,5"})
    EXPECT_EQ(RefusedTarget(fine, german), "") << fine;
  for (const char *refused : {"lots", "-1", "12,3,4"}) EXPECT_NE(RefusedTarget(refused, german), "") << refused;
}

TEST(WizardNutrients, RefuseATargetThatItsColumnCannotHold) {
  TestSession session;
  struct Case {
    int nutrientID;
    const char *typed, *sentence;
  };
  for (const Case &c : {Case{1, "32767", ""},
                        {1, "32767.6", "Please type a number from 0 to 32767."},
                        {23, "255", ""},
                        {23, "256", "Please type a number from 0 to 255."},
                        {20, "40000", ""},
                        {20, "1e30", "Please type a number from 0 to 9999999."},
                        {1, "(type a value)", ""}}) {
    EXPECT_EQ(RefusedTargetOf(*session, c.nutrientID, c.typed), c.sentence) << c.nutrientID << " " << c.typed;
  }
}

TEST(WizardFields, ProposeTheUnitsOfTheCountry) {
  EXPECT_EQ(ProposedUomID(1, german), 2);
  EXPECT_EQ(ProposedUomID(1, english), 1);
  EXPECT_EQ(ProposedUomID(2, english), 2) << "somebody chose it";
}

TEST(WizardNutrients, RecommendTheBandOfAgeAndGender) {
  const QDate today(2026, 3, 1);
  const std::vector<std::tuple<int, const char *, const char *>> bands = {
      {10, "13", "23"}, {11, "10", "20"}, {14, "10", "20"}, {15, "11", "21"}, {18, "11", "21"}, {19, "12", "22"},
      {24, "12", "22"}, {25, "13", "23"}, {50, "13", "23"}, {51, "14", "24"}, {90, "14", "24"}};
  for (const auto &[age, male, female] : bands) {
    const QDate birth = today.addYears(-age);
    EXPECT_EQ(GetRDATargetID(birth, true, today), male) << age;
    EXPECT_EQ(GetRDATargetID(birth, false, today), female) << age;
  }
  EXPECT_EQ(GetRDATargetID(QDate(1975, 3, 2), true, today), "13") << "fifty until tomorrow";
}

WizardAnswers Answers(const QString &diet) {
  WizardAnswers answers;
  answers.person = {.PersonName = "O'Brien \"Bo\"",
                    .Goal = 150,
                    .HeightFeet = 5,
                    .HeightInches = 6,
                    .BirthDate = QDate(1990, 1, 1),
                    .BackColor = 16769216};
  answers.startingWeight = 185.5;
  answers.startingDate = QDate(2026, 3, 1);
  answers.diet = diet;
  return answers;
}

QString TargetOf(TestSession &session, int nutrientID) {
  return session.ValueOf("Amount", "temp_meals_search", QStringLiteral("MealID=%1").arg(nutrientID));
}

TEST(WizardNutrients, FollowTheDiet) {
  TestSession session;
  struct Case {
    const char *diet;
    int nutrientID;
    const char *target;
  };
  const std::vector<Case> cases = {{"101", 33, "20"},  {"101", 2, "None"},  {"102", 3, "50"},   {"102", 4, "100"},
                                   {"102", 23, "30"},  {"102", 25, "30"},   {"102", 2, "133"},  {"102", 27, "40"},
                                   {"102", 1, "None"}, {"103", 2, "50"},    {"103", 4, "120"},  {"104", 1, "2200"},
                                   {"106", 13, "1.6"}, {"106", 11, "4000"}, {"100", 20, "None"}};
  for (const Case &c : cases) {
    FillWizardNutrients(*session, Answers(c.diet));
    EXPECT_EQ(TargetOf(session, c.nutrientID), c.target) << c.diet << " nutrient " << c.nutrientID;
    EXPECT_EQ(CountWizardNutrients(*session), 10) << c.diet;
  }
  EXPECT_EQ(session.ValueOf("Count(*) AS N", "temp_meals_search", "MealID BETWEEN 28 AND 32"), "0");
  const Recordset rows = session.Data().OpenRecordset("SELECT Count(*) AS N FROM temp_meals_search;");
  EXPECT_EQ(rows.Integer("N"), 30) << "35 nutrients without the five custom ones";
}

TEST(WizardNutrients, TheCustomizedPlanStartsWithTheChosenNutrient) {
  TestSession session;
  WizardAnswers answers = Answers("108");
  answers.nutrientID = 15;
  FillWizardNutrients(*session, answers);
  Recordset rows = session.Data().OpenRecordset(
      "SELECT temp_meals_search.* FROM temp_meals_search WHERE (IsModified=True) ORDER BY MealGroupID;");
  EXPECT_EQ(rows.RecordCount(), 10);
  EXPECT_EQ(rows.Integer("MealID"), 15);
}

TEST(WizardNutrients, RefuseNoneAndMoreThanTen) {
  TestSession session;
  FillWizardNutrients(*session, Answers("100"));
  EXPECT_TRUE(CheckWizardNutrients(*session));
  session.Data().Execute("UPDATE temp_meals_search SET IsModified = True WHERE (MealID=15);");
  session.boxes.Expect(
      "Too Many Nutrients",
      "It appears that you have selected 11 nutrients.  Please select just 10 nutrients from the list.");
  EXPECT_FALSE(CheckWizardNutrients(*session));
  session.Data().Execute("UPDATE temp_meals_search SET IsModified = False;");
  session.boxes.Expect("Not Enough Nutrients",
                       "It appears that you have not selected any nutrients.  Please select at "
                       "least one nutrient from the list.");
  EXPECT_FALSE(CheckWizardNutrients(*session));
  session.Data().Execute("UPDATE temp_meals_search SET IsModified = True WHERE (MealID=15);");
  EXPECT_TRUE(CheckWizardNutrients(*session)) << "one is enough";
}

TEST(WizardNutrients, OfferEveryNutrientButTheCustomOnesAsTheMostImportant) {
  TestSession session;
  QStringList offered;
  for (const OptionChoice &choice : WizardNutrientChoices(*session)) offered.append(QString::number(choice.value));
  EXPECT_EQ(offered.size(), 30);
  for (const char *left : {"0", "28", "32", "101"}) EXPECT_FALSE(offered.contains(left)) << left;
}

/// A file as it is shipped: nobody but the samples.
void ForgetProfiles(TestSession &session) {
  session.Data().Execute("DELETE people.*, people.PersonID FROM people WHERE (people.PersonID > 0);");
}

TEST(WizardFinish, TheFirstRunWritesProfileWeightTargetsAndSelection) {
  TestSession session;
  ForgetProfiles(session);
  EXPECT_TRUE(NeedsWizard(*session));
  WizardAnswers answers = Answers("108");
  answers.nutrientID = 15;
  FillWizardNutrients(*session, answers);
  session.Data().Execute("UPDATE temp_meals_search SET Amount = \"77,5\" WHERE (MealID=1);");
  session.Data().Execute("UPDATE temp_meals_search SET Amount = \"1800.5\" WHERE (MealID=2);");

  EXPECT_EQ(FinishWizard(*session, answers, WizardMode::FirstRun), "1");
  EXPECT_EQ(session.Rows("SELECT PersonName, Goal, GenderID, BackColor FROM people WHERE PersonID=1;"),
            "O'Brien ''Bo''|150|2|16769216");
  EXPECT_EQ(session.Rows("SELECT ThisDate, ThisWeight FROM weight_loss WHERE PersonID=1;"), "2026-03-01|185.5");
  EXPECT_EQ(session.Rows("SELECT TargetDesc, Carbs, Iron FROM nutrition_targets WHERE TargetID=?;",
                         {session.ValueOf("NutTargetID", "people", "PersonID=1").toInt()}),
            "My Targets|1800.5|")
      << "iron is not ticked: no target";
  EXPECT_EQ(session.Rows("SELECT NutrientID1, NutDescription1 FROM selected_nutrients WHERE PersonID=1;"), "15|Vit C");
  EXPECT_EQ(session->settings.NutrientID, 15);
}

TEST(WizardFinish, IsNeededWithoutGoalOrWeights) {
  TestSession session;
  EXPECT_TRUE(NeedsWizard(*session)) << "no weights yet";
  session.Weigh(QDate(2026, 3, 1), 180);
  EXPECT_FALSE(NeedsWizard(*session));
  session.Data().Execute("UPDATE people SET Goal = \"\" WHERE (PersonID=1);");
  EXPECT_TRUE(NeedsWizard(*session));
}

TEST(WizardFinish, AFurtherProfileLeavesTheSelectionAlone) {
  TestSession session;
  FillWizardNutrients(*session, Answers("101"));
  const auto kept = [&session] {
    return session.Rows("SELECT NutrientID1 FROM selected_nutrients WHERE PersonID=1;") +
           session.Rows("SELECT Max(TargetID) AS M FROM nutrition_targets;");
  };
  const QString before = kept();
  EXPECT_EQ(FinishWizard(*session, Answers("101"), WizardMode::AddingProfile), "2");
  EXPECT_EQ(kept(), before);
  EXPECT_EQ(session->settings.NutrientID, 102);
}

TEST(WizardFinish, CompletesTheProfileInUseAndNobodyElse) {
  TestSession session;
  session.AddProfile(2, "Ann");
  session.Data().Execute("UPDATE people SET Goal=\"\", Password=\"x\", NutTargetID=12 WHERE (PersonID=1);");
  EXPECT_EQ(WizardModeNow(*session), WizardMode::CompletingProfile);
  WizardStart start = StartingAnswers(*session, WizardMode::CompletingProfile);
  EXPECT_EQ(start.answers.person.PersonName, "Test Person");
  EXPECT_FALSE(start.hasWeights);
  start.answers.person.Goal = 140;
  start.answers.startingWeight = 181.5;
  EXPECT_EQ(FinishWizard(*session, start.answers, WizardMode::CompletingProfile), "1");
  EXPECT_EQ(
      session.Rows("SELECT PersonName, Goal, Password, NutTargetID FROM people WHERE PersonID > 0 ORDER BY PersonID;"),
      "Test Person|140|x|12; Ann|150||30");
  EXPECT_EQ(session.Rows("SELECT ThisDate, ThisWeight FROM weight_loss WHERE PersonID=1;"), "2026-03-01|181.5");
  EXPECT_EQ(WizardModeNow(*session), WizardMode::AddingProfile) << "nothing is missing any more";

  // With weights and no goal the weights stay.
  session.Data().Execute("UPDATE people SET Goal=\"\" WHERE (PersonID=1);");
  start = StartingAnswers(*session, WizardMode::CompletingProfile);
  EXPECT_TRUE(start.hasWeights);
  EXPECT_EQ(start.answers.startingWeight, 181.5);
  start.answers.person.Goal = 130;
  FinishWizard(*session, start.answers, WizardMode::CompletingProfile);
  EXPECT_EQ(session.ValueOf("Count(*) AS N", "weight_loss", "PersonID=1"), "1");
  session->profile.CurrentPersonID = "-2";
  EXPECT_EQ(WizardModeNow(*session), WizardMode::AddingProfile) << "a sample lacks nothing";
}

TEST(WizardFinish, WritesAllOrNothing) {
  TestSession session;
  WizardAnswers answers = Answers("101");
  session.Data().Execute("DELETE selected_nutrients.*, selected_nutrients.PersonID FROM selected_nutrients;");
  session.Data().Execute("ALTER TABLE selected_nutrients RENAME TO gone;");
  EXPECT_THROW(FinishWizard(*session, answers, WizardMode::FirstRun), Error);
  EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=2"), "");
}

}  // namespace
}  // namespace trimlog
