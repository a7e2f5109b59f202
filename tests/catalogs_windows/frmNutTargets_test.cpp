// The sets of daily targets in their window.
#include "catalogs/windows/frmNutTargets.h"

#include "catalogs/nutrient_selection.h"
#include "food_windows_fixture.h"

namespace trimlog {
namespace {

const QString caloriesTarget = QStringLiteral("txtTarget(1)");
const QString carbsTarget = QStringLiteral("txtTarget(2)");

class NutTargetsTest : public FoodWindowTest {
 protected:
  NutTargetsTest() {
    session->profile.NutTargetID = 30;
    session.Data().Execute("UPDATE people SET NutTargetID = 30;");
    Open();
  }
  void Open() {
    window = std::make_unique<frmNutTargets>(*session, navigator, nullptr);
    Show(*window);
  }
  void Type(const QString &field, const QString &text) { TypeInto(*window, field, text); }
  QString Text(const QString &field) { return TextOf(*window, field); }
  void Choose(int targetID) { FoodWindowTest::Choose(*window, "cboNutTargetID", targetID); }
  int Chosen() { return Find<QComboBox>(*window, "cboNutTargetID").currentData().toInt(); }
  void Click(const QString &name) { FoodWindowTest::Click(*window, name); }
  QString Stored(const char *field, int targetID) {
    return session.ValueOf(field, "nutrition_targets", QStringLiteral("TargetID=%1").arg(targetID));
  }
  QString ProfilesSet() { return session.ValueOf("NutTargetID", "people", "PersonID=1"); }

  std::unique_ptr<frmNutTargets> window;
};

TEST_F(NutTargetsTest, ShowsTheSetInForceAndEveryNutrientButTransFat) {
  EXPECT_EQ(window->windowTitle(), "Daily Nutritional Targets");
  EXPECT_EQ(Find<QLabel>(*window, "pnlNutTargetID").text(), "Selected Target for Test Person:");
  EXPECT_EQ(Chosen(), 30);
  EXPECT_EQ(Text(caloriesTarget), "2000");
  const auto fields = window->findChildren<QLineEdit *>(QRegularExpression("^txtTarget\\(\\d+\\)$"));
  EXPECT_EQ(fields.size(), 34);
  EXPECT_EQ(window->findChild<QLineEdit *>("txtTarget(35)"), nullptr);
  NutrientSelection selection = ReadNutrientSelection(*session);
  selection[0] = {28, QStringLiteral("Joy"), true, {}};
  SaveNutrientSelection(*session, selection);
  EXPECT_EQ(Find<QLineEdit>(*window, "txtTarget(28)").accessibleName(), "Joy:");
}

TEST_F(NutTargetsTest, ChoosingAnotherSetSavesTheOneShown) {
  Type(caloriesTarget, "2200");
  Type(carbsTarget, "x");
  EXPECT_EQ(Text(carbsTarget), Stored("Carbs", 30)) << "no number: what is stored stands there again";
  Choose(40);
  EXPECT_EQ(Stored("Calories", 30), "2200");
  EXPECT_EQ(Text("txtTarget(3)"), "44");
  EXPECT_EQ(ProfilesSet(), "30") << "the choice is stored on closing";
  Click("cmdOK");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(ProfilesSet(), "40");
  EXPECT_EQ(session->nutrients.NutrientTargets[2], 44);
}

TEST_F(NutTargetsTest, ATargetThatCannotBeStoredKeepsTheWindow) {
  Type(caloriesTarget, "1e9");
  session.boxes.Expect("Invalid Value", "Please type a number from 0 to 32767.");
  Find<QComboBox>(*window, "cboNutTargetID").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(Chosen(), 30);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), caloriesTarget);
  session.boxes.Expect("Invalid Value", "");
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Text(caloriesTarget), "2000");
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Stored("Calories", 30), "2000");
}

TEST_F(NutTargetsTest, ANewSetIsSelectedAndTypedIn) {
  Type(caloriesTarget, "1900");
  WhenModal([this](QWidget &dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Create a New Set of Nutrition Targets");
    session.boxes.Expect("Description Required", "Please enter a description for this nutritional target.");
    FoodWindowTest::Click(dialog, "cmdOK");
    TypeInto(dialog, "txtTargetDesc", "Marathon");
    FoodWindowTest::Click(dialog, "cmdOK");
  });
  Click("cmdNewTarget");
  EXPECT_EQ(Stored("Calories", 30), "1900") << "saved before";
  EXPECT_EQ(Find<QComboBox>(*window, "cboNutTargetID").currentText(), "Marathon");
  EXPECT_EQ(Text(caloriesTarget), "");
  EXPECT_EQ(window->focusWidget()->objectName(), caloriesTarget);
  Type(caloriesTarget, "3500");
  Click("cmdOK");
  EXPECT_EQ(Stored("Calories", 2), "3500");
  EXPECT_EQ(Stored("Carbs", 2), "");
  EXPECT_EQ(ProfilesSet(), "2");
}

TEST_F(NutTargetsTest, DeletingAsksAndLeavesNone) {
  const QString question = "Are you sure that you want to delete the current set of Target values?";
  session.boxes.Expect("Delete Targets?", question, BoxButton::No);
  Click("cmdDeleteTarget");
  EXPECT_EQ(Chosen(), 30);
  session.boxes.Expect("Delete Targets?", question, BoxButton::Yes);
  Click("cmdDeleteTarget");
  EXPECT_EQ(Chosen(), noTargetSet);
  EXPECT_EQ(Stored("TargetID", 30), "");
  EXPECT_EQ(Text(caloriesTarget), "");
  EXPECT_FALSE(Find<QLineEdit>(*window, caloriesTarget).isEnabled());
  EXPECT_FALSE(Find<QPushButton>(*window, "cmdDeleteTarget").isEnabled());
  Click("cmdOK");
  EXPECT_EQ(ProfilesSet(), "0");
}

TEST_F(NutTargetsTest, ASetDeletedElsewhereIsToldAndTheWindowCanBeLeft) {
  Type(caloriesTarget, "1500");
  session.Data().Execute(
      "DELETE nutrition_targets.*, nutrition_targets.TargetID FROM nutrition_targets "
      "WHERE (nutrition_targets.TargetID=30);");
  session.boxes.Expect("Error Saving Targets", "This set of targets is not there any more.");
  session.boxes.Expect("Close Without Saving?", "These targets could not be saved.", BoxButton::No);
  Click("cmdOK");
  EXPECT_TRUE(window->isVisible());
  session.boxes.Expect("Error Saving Targets", "");
  session.boxes.Expect("Close Without Saving?", "", BoxButton::Yes);
  Click("cmdOK");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(NutTargetsTest, AFailedDeletionIsLoggedWhereItAlwaysWas) {
  QFile::rename(session->DataFilePath(), session->DataFilePath() + ".away");
  session.boxes.Expect("Delete Targets?", "", BoxButton::Yes);
  session.boxes.Expect("Error Deleting Targets", "An error occurred while deleting.");
  Click("cmdDeleteTarget");
  QFile::rename(session->DataFilePath() + ".away", session->DataFilePath());
  EXPECT_TRUE(session.LogLines().last().contains("frmSetupExercises, cmdDeleteActivity_Click"));
  EXPECT_EQ(Text(caloriesTarget), "2000") << "nothing was deleted";
}

TEST_F(NutTargetsTest, OpensTheNutrientsAndItsHelp) {
  EXPECT_FALSE(Find<QPushButton>(*window, "cmdAllNutrients").isEnabled()) << "an empty door";
  navigator.OpenNutrientSelection = [this](QWidget *) { opened.append("nutrients"); };
  Open();
  Click("cmdAllNutrients");
  Click("cmdHelp");
  EXPECT_EQ(opened.join(' '), "nutrients targets");
}

}  // namespace
}  // namespace trimlog
