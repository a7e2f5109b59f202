#include "catalogs/exercise_catalog.h"
#include "catalogs/windows/exercise_page.h"
#include "catalogs/windows/frmAddActivity.h"
#include "core/windows/profiles/add_rec_page.h"
#include "food_windows_fixture.h"
#include "support/locales.h"

namespace trimlog {
namespace {

const QDate workoutDay(2026, 2, 10);

/// The dialog that adds an exercise, on a list with "Zebra walk": 30 minutes, 200 calories.
class AddActivityTest : public FoodWindowTest {
 protected:
  explicit AddActivityTest(const QLocale &locale = us) : FoodWindowTest(locale) {
    ListedExercise walk;
    walk.ActivityDesc = "Zebra walk";
    walk.Duration = "30";
    walk.Calories = 200;
    walk.Pace = "brisk";
    walk.Sets = 2;
    walkID = AddExercise(*session, walk);
  }
  void Open(const JournalKind &kind = JournalKind::Diary()) {
    const auto stored = [this](int recordID, const QDate &date) {
      told.append(QString::number(recordID) + date.toString(u" yyyy-MM-dd"));
    };
    dialog = std::make_unique<frmAddActivity>(
        *session, navigator, EntryOpening{.kind = kind, .date = workoutDay, .stored = stored}, nullptr);
    Show(*dialog);
  }
  BoundGrid &List() { return Find<BoundGrid>(*dialog, "grdActivitiesList"); }
  void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  void Type(const QString &text) {
    for (const QChar letter : text) QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
  }
  void GoToMinutes(const QString &text) {
    QTest::keyClick(dialog.get(), Qt::Key_M, Qt::AltModifier);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "txtMinutes");
    static_cast<QLineEdit *>(QApplication::focusWidget())->selectAll();
    text.isEmpty() ? Press(Qt::Key_Delete) : Type(text);
  }
  QString Minutes() { return TextOf(*dialog, "txtMinutes"); }
  QString Entry(const QString &field) { return session.ValueOf(field, "activities", "PersonID=1"); }

  int walkID = 0;
  std::unique_ptr<frmAddActivity> dialog;
  QStringList told;
};

TEST_F(AddActivityTest, LettersAndEnterAddAnExercise) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), "Add an Exercise or Workout to Your Journal");
  EXPECT_TRUE(List().hasFocus());
  EXPECT_EQ(List().CurrentKey(), walkID) << "what is one's own stands first";
  Type("zumba");
  EXPECT_EQ(List().CurrentField("ActivityDesc").toString(), "Zumba class");
  QTest::keyClick(&List(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(List().CurrentKey(), walkID);
  EXPECT_EQ(Minutes(), "30");
  Press(Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(told, QStringList("1 2026-02-10"));
  EXPECT_EQ(Entry("ActivityID").toInt(), walkID);
  EXPECT_EQ(Entry("Calories") + " " + Entry("Pace") + " " + Entry("Sets") + " " + Entry("IsPlanned"), "200 brisk 2 0");
}

TEST_F(AddActivityTest, MinutesAndWeightAreSeenBeforeTheyAreStored) {
  session.Data().Execute(
      "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( 1, ?, 180, 0 );", {workoutDay});
  Open();
  EXPECT_EQ(Find<QLabel>(*dialog, "lblBurned").text(), "240 calories burned");
  GoToMinutes("45");
  EXPECT_EQ(Find<QLabel>(*dialog, "lblBurned").text(), "360 calories burned");
  QCheckBox &byWeight = Find<QCheckBox>(*dialog, "chkRecalcCalories");
  EXPECT_TRUE(byWeight.isChecked());
  byWeight.setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(Find<QLabel>(*dialog, "lblBurned").text(), "300 calories burned");
  Click(*dialog, "cmdOK");
  EXPECT_EQ(Entry("Calories"), "300");
  EXPECT_EQ(Entry("Duration"), "45");
  EXPECT_TRUE(session->settings.RecalcCalories) << "the tick is for this entry alone";
}

TEST_F(AddActivityTest, MinutesThatAreNoneGiveWayToTheLists) {
  for (const char *typed : {"abc", "-1", ""}) {
    Open();
    GoToMinutes(typed);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Minutes(), "30") << typed;
    GoToMinutes(typed);
    Press(Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible()) << "they are seen before they are added: " << typed;
    EXPECT_EQ(Minutes(), "30");
  }
  EXPECT_EQ(Entry("RecordID"), "");
}

TEST_F(AddActivityTest, TheDateIsCheckedAndTheQuickJournalsIsFixed) {
  Open();
  TypeInto(*dialog, "txtDate", "no day");
  session.boxes.Expect("Invalid Date", "Please choose or enter a valid date for this exercise or workout.");
  Click(*dialog, "cmdOK");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtDate");
  TypeInto(*dialog, "txtDate", "2/12/2026");
  Click(*dialog, "cmdOK");
  EXPECT_EQ(told, QStringList("1 2026-02-12"));

  Open(JournalKind::Quick());
  EXPECT_FALSE(Find<QLineEdit>(*dialog, "txtDate").isEnabled());
  EXPECT_FALSE(Find<QWidget>(*dialog, "cmdDate").isEnabled());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(told.size(), 1) << "Esc adds nothing";
}

TEST_F(AddActivityTest, WhatIsPlannedKeepsTheListsCalories) {
  session.Data().Execute(
      "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( 1, ?, 180, 0 );", {workoutDay});
  Open(JournalKind::Planner());
  EXPECT_EQ(dialog->windowTitle(), "Add an Exercise or Workout to Your Planner");
  EXPECT_FALSE(Find<QCheckBox>(*dialog, "chkRecalcCalories").isEnabled());
  Click(*dialog, "cmdOK");
  EXPECT_EQ(Entry("Calories") + " " + Entry("IsPlanned"), "200 -1");
}

TEST_F(AddActivityTest, ANewExerciseIsMadeOnTheSpotAndSelected) {
  Open();
  WhenModal([this](QWidget &window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(window.windowTitle(), "Create a New Exercise or Workout");
    EXPECT_EQ(window.focusWidget()->objectName(), "txtActivityDesc");
    EXPECT_TRUE(Find<QLabel>(window, "lblReferenceWeight").text().endsWith("for a body of 150 lbs."));
    session.boxes.Expect("Description Required", "Please enter a description for this exercise.");
    Click(window, "cmdOK");
    TypeInto(window, "txtActivityDesc", "Juggling");
    TypeInto(window, "txtDuration", "20");
    TypeInto(window, "txtCalories", "many");
    session.boxes.Expect("Invalid Number of Calories",
                         "Please enter a valid number of Calories burned for this exercise.");
    Click(window, "cmdOK");
    EXPECT_EQ(window.focusWidget()->objectName(), "txtCalories");
    TypeInto(window, "txtCalories", "60");
    TypeInto(window, "txtPace", "calm");
    TypeInto(window, "txtAmount", "3 balls");
    TypeInto(window, "txtReps", "5");
    Click(window, "cmdOK");
  });
  Click(*dialog, "cmdNewActivity");
  EXPECT_EQ(List().CurrentField("ActivityDesc").toString(), "Juggling");
  EXPECT_EQ(Minutes(), "20");
  EXPECT_EQ(dialog->focusWidget(), &List());
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_EQ(Entry("Calories") + "," + Entry("Amount") + "," + Entry("Sets") + "," + Entry("Reps"), "60,3 balls,,5");
}

TEST_F(AddActivityTest, ADoubleClickAddsTheExercise) {
  Open();
  const QPoint place = List().visualRect(List().currentIndex()).center();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Entry("ActivityID"), QString::number(walkID));
}

TEST_F(AddActivityTest, AnExerciseDeletedElsewhereIsNotAdded) {
  Open();
  session.Data().Execute("DELETE activities_list.* FROM activities_list WHERE ActivityID = ?;", {walkID});
  session.boxes.Expect("Error Adding Exercise", "This exercise has been deleted meanwhile.");
  Click(*dialog, "cmdOK");
  EXPECT_TRUE(dialog->isVisible());
  session.Announce({.table = Table::ActivitiesList, .keys = {walkID}});
  EXPECT_NE(List().CurrentKey(), walkID);
  EXPECT_EQ(Entry("RecordID"), "");
}

}  // namespace
}  // namespace trimlog
