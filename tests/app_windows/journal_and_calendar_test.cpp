// The calendar, the journal and the Quick Journal in one frame: they never tell different figures of a day.
#include <QClipboard>
#include <QPlainTextEdit>

#include "core/windows/frame/frmMDI.h"
#include "journal/windows/frmDiary.h"
#include "journal/windows/frmQuickDiary.h"
#include "journal_house.h"
#include "platform/windows/fields/date_field.h"
#include "support/full_disk.h"
#include "weightlog/windows/frmData.h"

namespace trimlog {
namespace {

class JournalInTheFrame : public JournalHouse {
 protected:
  JournalInTheFrame() {
    session->settings.ShowSplash = false;
    session->settings.ShowTutorial = false;
    session->windows.quickJournalPlace = {300, 450, 9000, 4500};
    navigator.OpenQuickJournal = [this](QWidget *) { OpenQuickJournal(*session, navigator, doors, frame.get()); };
    ContentForms forms;
    forms.insert(QStringLiteral("frmData"),
                 [this](QWidget *parent) { return new frmData(*session, navigator, parent); });
    forms.insert(QStringLiteral("frmDiary"),
                 [this](QWidget *parent) { return new frmDiary(*session, navigator, doors, parent); });
    frame = std::make_unique<frmMDI>(FrameParts{*session, navigator, hooks, *system, forms, {}});
    EXPECT_TRUE(frame->MDIForm_Load());
    Activate(*frame);
  }
  ContentWindow &Form() { return *frame->CurrentForm(); }
  frmQuickDiary *Quick() { return frame->findChild<frmQuickDiary *>(); }
  frmQuickDiary &OpenQuick() {
    Click(Form(), "cmdDiary");
    EXPECT_TRUE(QTest::qWaitForWindowActive(Quick()));
    return *Quick();
  }
  void Choose(const char *menu) {
    frame->Menus().Action(QString::fromLatin1(menu))->trigger();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
  /// The date that a journal window is on.
  static QString DateIn(QWidget &window) { return Find<DateField>(window, QStringLiteral("txtDate")).text(); }

  RoomHooks hooks;
  std::unique_ptr<OperatingSystem> system = RunningSystem();
  std::unique_ptr<frmMDI> frame;
};

TEST_F(JournalInTheFrame, OpensOnTheDayThatIsActiveInTheCalendar) {
  Form().GotoDate(QDate(2026, 3, 10));
  Choose("mnuViewDiary");
  EXPECT_EQ(Form().objectName(), QStringLiteral("frmDiary"));
  EXPECT_EQ(DateIn(Form()), QStringLiteral("3/10/2026"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(DateIn(Form()), QStringLiteral("3/11/2026"));
  Choose("mnuViewData");
  EXPECT_EQ(session->windows.RememberedDate, QDate(2026, 3, 10));
  Choose("mnuViewDiary");
  EXPECT_EQ(DateIn(Form()), QStringLiteral("3/10/2026"));
}

TEST_F(JournalInTheFrame, TheFigureOfTheDayFollowsTheQuickJournalAtOnce) {
  frmQuickDiary &quick = OpenQuick();
  int key = 0;
  add = [&](const EntryOpening &opening) {
    EXPECT_TRUE(opening.kind.hasFixedDate);
    EXPECT_EQ(opening.date, QDate(2026, 3, 1));
    key = Eat(opening.date, 3);
    opening.stored(key, opening.date);
    EXPECT_EQ(Figure(Form(), 1), FigureOf(300)) << "while the dialog still stands";
  };
  Click(quick, "cmdNewMeal");
  EXPECT_EQ(Total(quick), QStringLiteral("300"));
  // Nothing else is read again: what changed without a word is not seen.
  session.Data().Execute(QStringLiteral(
      "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, Calories, IsPlanned ) "
      "VALUES ( 1, 900, #3/2/2026#, 1, 100001, \"1\", 77, 0 );"));
  Type(quick, key, "Amount", QStringLiteral("2"));
  EXPECT_EQ(Figure(Form(), 1), FigureOf(600));
  EXPECT_EQ(Figure(Form(), 2), QString());
  Click(quick, "cmdDeleteMeal");
  EXPECT_EQ(Figure(Form(), 1), QString());
  EXPECT_EQ(Figure(Form(), 2), QString());
}

TEST_F(JournalInTheFrame, TheQuickJournalGoesAlongWithWeightsAndDays) {
  frmQuickDiary &quick = OpenQuick();
  Form().GotoDate(QDate(2026, 3, 5));
  QApplication::processEvents();
  EXPECT_EQ(DateIn(quick), QStringLiteral("3/5/2026"));
  Activate(*frame);
  auto &cell = Find<QLineEdit>(Form(), QStringLiteral("txtData(5)"));
  QTest::mouseClick(&cell, Qt::LeftButton);
  QTest::keyClicks(&cell, QStringLiteral("150"));
  QTest::keyClick(&cell, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(DateIn(quick), QStringLiteral("3/6/2026"));
  EXPECT_EQ(session.ValueOf(QStringLiteral("ThisWeight"), QStringLiteral("weight_loss"), QStringLiteral("PersonID=1")),
            QStringLiteral("150"));
}

TEST_F(JournalInTheFrame, ExercisesChangeTheFigureOfTheirDayToo) {
  session->settings.NutrientID = nutrient_id::caloriesBurned;
  session->changes.AnnounceSettings();
  ActivityEntry walk;
  walk.date = QDate(2026, 3, 2);
  walk.ActivityID = 1;
  walk.Calories = 150;
  AddActivity(*session, EntryKind::Eaten, walk);
  EXPECT_EQ(Figure(Form(), 2), FigureOf(150));
}

TEST_F(JournalInTheFrame, TheKeysOfTheEditMenuActWhereAPersonWorks) {
  const int key = Eat(QDate(2026, 3, 1), 2);
  frmQuickDiary &quick = OpenQuick();
  Form().GotoDate(QDate(2026, 3, 1));
  Activate(quick);
  BoundGrid &grid = Meals(quick);
  grid.setFocus();
  grid.Selection().GoTo(Cell(quick, key, "Amount"));
  EXPECT_EQ(frame->ActiveControl(), &grid);
  QApplication::clipboard()->setText(QStringLiteral("3"));
  QTest::keyClick(&grid, Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(&grid, Qt::Key_Delete, Qt::ControlModifier);  // no weight is meant here
  EXPECT_EQ(Find<QLineEdit>(Form(), QStringLiteral("txtData(1)")).text(), QString());
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(Cell(quick, key, "Amount").data().toString(), QStringLiteral("3"));
  Activate(*frame);
  EXPECT_EQ(frame->ActiveControl(), Form().focusWidget());
}

TEST_F(JournalInTheFrame, TheQuickJournalHidesOverOtherWindowsAndComesBack) {
  frmQuickDiary &quick = OpenQuick();
  Choose("mnuViewDiary");
  EXPECT_FALSE(quick.isVisible());
  const int key = Eat(QDate(2026, 3, 1), 4);
  EXPECT_EQ(Meals(Form()).Model().RowOfKey(key), 0);
  Choose("mnuViewData");
  EXPECT_TRUE(quick.isVisible());
  EXPECT_EQ(Meals(quick).Model().RowOfKey(key), 0) << "written while it was hidden";
  EXPECT_EQ(Total(quick), QStringLiteral("400"));
  EXPECT_EQ(Figure(Form(), 1), FigureOf(400));
}

TEST_F(JournalInTheFrame, WhatIsTypedInTheQuickJournalHoldsTheFrame) {
  session->settings.DefaultDiaryTab = 0;
  AddNote(*session, {2026, 3, 1}, QStringLiteral("old"));
  frmQuickDiary &quick = OpenQuick();
  auto &note = Find<QPlainTextEdit>(quick, QStringLiteral("txtNotes"));
  QTest::keyClicks(&note, QStringLiteral(", not yet"));
  {
    const FullDisk full(0);
    session.boxes.Expect(QStringLiteral("Error Saving Journal"), QStringLiteral("An error occurred"));
    Choose("mnuViewDiary");
  }
  EXPECT_EQ(Form().objectName(), QStringLiteral("frmData"));
  EXPECT_TRUE(quick.isVisible());
  frame->LoadData(QStringLiteral("-1"));
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(Quick()) << "another person's day is another window";
  EXPECT_EQ(session.ValueOf(QStringLiteral("Notes"), QStringLiteral("notes"), QStringLiteral("PersonID=1")),
            QStringLiteral("old, not yet"));
}

}  // namespace
}  // namespace trimlog
