#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "journal/day/day_records.h"
#include "journal/windows/exercises_page.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/locales.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

inline const QDate exerciseDay(2026, 2, 10);

/// The exercises page of one of the journal's windows on the screen. The list holds exercise 9001, "Zebra walk": 30
/// minutes, 200 calories, 2 sets; and 9002, "Zebra run", without minutes, 99 calories.
class ExercisesPageTest : public ::testing::Test {
 protected:
  explicit ExercisesPageTest(const QLocale &locale = us) : session(locale) {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    session->settings.ConfirmExerciseUpdates = 1;
    session->settings.NetCaloriesBMR = false;
    ListExercise(9001, "Zebra walk", "30", 200, 2);
    ListExercise(9002, "Zebra run", "", 99, 0);
    doors.AddActivity = [this](QWidget *, const EntryOpening &opening) {
      if (onAdd) onAdd(opening);
    };
  }
  void ListExercise(int key, const QString &name, const QString &minutes, double calories, int sets) {
    session.Data().Execute(
        "INSERT INTO activities_list ( ActivityID, ActivityDesc, Duration, Calories, Pace, Amount, Sets, RecordTypeID "
        ") "
        "VALUES ( ?, ?, ?, ?, 'brisk', '2 miles', ?, 2 );",
        {key, name, minutes, calories, sets});
  }
  void Weigh(double weight) {
    session.Data().Execute(
        "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) VALUES ( 1, ?, ?, 0 );",
        {exerciseDay, weight});
  }
  int AddEntry(const QString &minutes, double calories, const QDate &date = exerciseDay, int exercise = 9001) {
    ActivityEntry entry;
    entry.date = date;
    entry.ActivityID = exercise;
    entry.Duration = minutes;
    entry.Calories = calories;
    return AddActivity(*session, EntryKind::Eaten, entry);
  }
  void Open(const JournalKind &kind = JournalKind::Diary(), JournalView view = JournalView::SingleDate) {
    session->settings.LastDiaryView = static_cast<int>(view);
    day = std::make_unique<JournalDay>(*session, kind, exerciseDay);
    page = std::make_unique<ExercisesPage>(JournalParts{*session, navigator, doors, *day}, nullptr);
    page->resize(860, 360);
    page->show();
    page->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    page->TakeFocus();
  }
  BoundGrid &Grid() { return Find<BoundGrid>(*page, "grdActivities"); }
  QModelIndex Cell(qint64 key, const char *column) {
    return Grid().Model().index(Grid().Model().RowOfKey(key), Grid().Model().ColumnByName(QLatin1String(column)));
  }
  void GoTo(qint64 key, const char *column) { Grid().Selection().GoTo(Cell(key, column)); }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, held);
    QApplication::processEvents();
  }
  void Type(const QString &text) {
    for (const QChar letter : text) QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
  }
  /// Types over the current cell and goes on with Tab.
  void TypeOver(const QString &text) {
    Press(Qt::Key_F2);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Type(text);
    Press(Qt::Key_Tab);
  }
  void Click(const char *button) {
    QTest::mouseClick(&Find<QPushButton>(*page, QLatin1String(button)), Qt::LeftButton);
    QApplication::processEvents();
  }
  std::string Stored(const char *field, int key) {
    return session.ValueOf(QLatin1String(field), "activities", QStringLiteral("PersonID=1 AND RecordID=%1").arg(key))
        .toStdString();
  }
  std::string Label(const char *name) { return Find<QLabel>(*page, QLatin1String(name)).text().toStdString(); }
  std::string Figure(const char *name) { return Find<QLineEdit>(*page, QLatin1String(name)).text().toStdString(); }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  std::function<void(const EntryOpening &opening)> onAdd;
  std::unique_ptr<JournalDay> day;
  std::unique_ptr<ExercisesPage> page;
};

}  // namespace trimlog
