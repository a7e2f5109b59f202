// Sets of daily targets: what is stored, what is refused, and which one holds.
#include "catalogs/target_sets.h"

#include "core/session/data_changes.h"
#include "foods_fixture.h"
#include "support/heard_changes.h"
#include "support/locales.h"

namespace trimlog {
namespace {

class TargetSetsTest : public Foods {
 protected:
  QString Stored(const char *field, int targetID) {
    return session.ValueOf(field, "nutrition_targets", QStringLiteral("TargetID=%1").arg(targetID));
  }
  QString ChosenSet() { return session.ValueOf("NutTargetID", "people", "PersonID=1"); }
};

TEST_F(TargetSetsTest, OnlyNumbersAreStored) {
  TargetTexts typed = LoadTargetFields(*session, 1);
  EXPECT_EQ(typed[0], "2000");
  EXPECT_EQ(typed[12], "2");
  EXPECT_EQ(typed[16], "") << "mono fat has none";
  typed[0] = "2100.5";
  typed[1] = "x";
  typed[2] = "";
  typed[16] = "12.25";
  HeardChanges heard(*session);
  SaveTargetFields(*session, 1, typed);
  EXPECT_EQ(heard.Take(), "nutrition_targets 1");
  EXPECT_EQ(Stored("Calories", 1), "2100") << "halves to even";
  EXPECT_EQ(Stored("Carbs", 1), "300");
  EXPECT_EQ(Stored("Fat", 1), "65");
  EXPECT_EQ(Stored("MonoFat", 1), "12.25");
  SaveTargetFields(*session, 1, {});
  EXPECT_EQ(Stored("Calories", 1), "2100");
  EXPECT_THROW(SaveTargetFields(*session, 7, typed), Error) << "a set that is gone";
  EXPECT_THROW(SaveTargetFields(*session, 7, {}), Error);
  EXPECT_THROW(LoadTargetFields(*session, 7), Error);
}

TEST_F(TargetSetsTest, RefuseWhatTheirColumnCannotHold) {
  struct Case {
    int nutrientID;
    const char *typed;
    const char *refusal;
    const QLocale &locale = us;
  };
  const char *const whole = "Please type a number from 0 to 32767.";
  const char *const any = "Please type a number from 0 to 9999999.";
  for (const Case &c :
       {Case{1, "32767", ""}, Case{1, "32768", whole}, Case{1, "1e9", whole}, Case{1, "-1", whole}, Case{23, "255", ""},
        Case{23, "255.6", "Please type a number from 0 to 255."}, Case{33, "40000", whole}, Case{2, "1e9", any},
        Case{2, "x", ""}, Case{2, "", ""}, Case{2, "1,5", "", german}}) {
    session->locale = c.locale;
    EXPECT_EQ(RefusedTargetField(*session, c.nutrientID, c.typed), c.refusal) << c.nutrientID << " " << c.typed;
  }
}

TEST_F(TargetSetsTest, ReadAndWriteTheLocalesForm) {
  session->locale = german;
  TargetTexts typed;
  typed[1] = "12,5";
  typed[2] = "7.25";
  SaveTargetFields(*session, 30, typed);
  EXPECT_EQ(Stored("Carbs", 30) + " " + Stored("Fat", 30), "12.5 7.25");
  EXPECT_EQ(LoadTargetFields(*session, 30)[2], "7,25");
}

TEST_F(TargetSetsTest, TheChosenSetIsInForceAtOnce) {
  HeardChanges heard(*session);
  const int own = AddTargetSet(*session, "My \"own\" set");
  EXPECT_EQ(own, 2) << "sets of persons are numbered below 10";
  EXPECT_EQ(Stored("TargetDesc", own), "My ''own'' set");
  EXPECT_EQ(Stored("TargetType", own), "4");
  EXPECT_EQ(LoadTargetFields(*session, own), TargetTexts());
  heard.Take();

  TargetTexts typed;
  typed[0] = "1500";
  SaveAndChooseTargets(*session, own, typed);
  EXPECT_EQ(heard.Take(), "nutrition_targets 2; people 1 person 1");
  EXPECT_EQ(ChosenSet(), "2");
  EXPECT_EQ(session->profile.NutTargetID, own);
  EXPECT_EQ(session->nutrients.NutrientTargets[0], 1500);
  EXPECT_EQ(session->nutrients.NutrientTargets[1], -1);

  typed[0] = "1600";
  SaveTargetFields(*session, own, typed);
  EXPECT_EQ(session->nutrients.NutrientTargets[0], 1600) << "a change of the set in force";
  heard.Take();
  SaveAndChooseTargets(*session, own, std::nullopt);
  EXPECT_EQ(heard.Take(), "") << "only looked at";

  DeleteTargetSet(*session, own);
  EXPECT_EQ(heard.Take(), "people 1 person 1; nutrition_targets 2");
  EXPECT_EQ(ChosenSet(), "0");
  EXPECT_EQ(TargetSetInForce(*session), noTargetSet);
  EXPECT_EQ(session->nutrients.NutrientTargets[0], -1);
}

TEST_F(TargetSetsTest, AFailedClosingStoresNeither) {
  TargetTexts typed;
  typed[0] = "1";
  session->profile.NutTargetID = 30;
  EXPECT_THROW(SaveAndChooseTargets(*session, 7, typed), Error);
  EXPECT_NE(ChosenSet(), "7");
  EXPECT_EQ(session->profile.NutTargetID, 30);
}

TEST_F(TargetSetsTest, ASetThatIsGoneGivesWayToTheFirstAndNobodyHasNone) {
  session->profile.NutTargetID = 9;
  EXPECT_EQ(TargetSetInForce(*session), 1) << "as the journal reads it";
  session->profile.NutTargetID = 40;
  EXPECT_EQ(TargetSetInForce(*session), 40);
  EXPECT_EQ(SelectedTargetCaption(*session), "Selected Target for Test Person:");
  session->profile.CurrentPersonID = "0";
  EXPECT_EQ(SelectedTargetCaption(*session), "Selected Target:");
  ChooseTargetSet(*session, 41);
  EXPECT_EQ(session->profile.NutTargetID, 40) << "nobody is there to choose";
}

}  // namespace
}  // namespace trimlog
