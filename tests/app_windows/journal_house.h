#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "core/session/navigator.h"
#include "journal/day/day_records.h"
#include "journal/day/journal_doors.h"
#include "platform/store/recordset.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/totals_strip.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A session in March 2026, whose 1st is cell 1 of the calendar, with foods of round figures: a serving of food n has
/// 100 * n calories. The calendar shows the calories consumed. The add dialog is answered by `add`.
class JournalHouse : public testing::Test {
 protected:
  static constexpr int foods = 9;

  JournalHouse() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    SelectedNutrient &first = session->nutrients.SelectedNutrients[0];
    first = {nutrient_id::calories, QStringLiteral("Cals"), true, {}};
    session->settings.NutrientID = nutrient_id::calories;
    session->settings.ConfirmMealsUpdates = 1;
    session->settings.ConfirmDeletes = false;
    session->profile.rewards.type = RewardType::Never;
    for (int n = 1; n <= foods; ++n) {
      session.Data().Execute(
          QStringLiteral("INSERT INTO meals_list ( MealID, MealDesc, RecordTypeID, MealGroupID, Calories ) "
                         "VALUES ( ?, ?, 2, 1, ? );"),
          {FoodID(n), QStringLiteral("Aaa food %1").arg(n), 100 * n});
    }
    doors.AddMeal = [this](QWidget *, const EntryOpening &opening) {
      if (add) add(opening);
    };
  }
  static int FoodID(int n) { return 100000 + n; }
  int Eat(const QDate &date, int food, double servings = 1, int mealType = 1) {
    MealEntry entry{.date = date, .MealTypeID = mealType, .MealID = FoodID(food), .Amount = QString::number(servings)};
    entry.values[nutrient_id::calories - 1] = 100 * food * servings;
    return AddRecMeal(*session, EntryKind::Eaten, entry);
  }

  BoundGrid &Meals(QWidget &window) { return Find<BoundGrid>(window, QStringLiteral("grdMeals")); }
  QModelIndex Cell(QWidget &window, qint64 key, const char *column) {
    GridModel &model = Meals(window).Model();
    return model.index(model.RowOfKey(key), model.ColumnByName(QLatin1String(column)));
  }
  QString Total(QWidget &window) {
    return Find<TotalsStrip>(window, QStringLiteral("grdMealTotals")).Text(QStringLiteral("Total1"));
  }
  /// The calendar's figure of a day of March 2026.
  QString Figure(QWidget &calendar, int day) {
    return Find<QLabel>(calendar, QStringLiteral("txtCalories(%1)").arg(day)).text();
  }
  QString FigureOf(double calories) const {
    return QString::number(calories) + u' ' + session.session->nutrients.NutrientDefs[0].shortUnit;
  }
  /// (A window counts as active while one is that floats over it.)
  static void Activate(QWidget &window) {
    QApplication::setActiveWindow(window.window());
    QApplication::processEvents();
  }
  /// Types over a cell and leaves it.
  void Type(QWidget &window, qint64 key, const char *column, const QString &text) {
    Activate(window);
    BoundGrid &grid = Meals(window);
    grid.setFocus();
    grid.Selection().GoTo(Cell(window, key, column));
    QTest::keyClick(&grid, Qt::Key_F2);
    ASSERT_TRUE(grid.OpenEditor());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QApplication::processEvents();
  }
  void Click(QWidget &window, const char *button) {
    Activate(window);
    QTest::mouseClick(&Find<QAbstractButton>(window, QString::fromLatin1(button)), Qt::LeftButton);
    QApplication::processEvents();
  }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  std::function<void(const EntryOpening &)> add;
};

}  // namespace trimlog
