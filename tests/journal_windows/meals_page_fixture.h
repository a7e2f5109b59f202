#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "core/session/data_changes.h"
#include "core/session/navigator.h"
#include "journal/day/day_records.h"
#include "journal/windows/meals_page.h"
#include "platform/store/recordset.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/totals_strip.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A page of meals on a session of its own, in a window as a journal has it. Day one is the 1st of March 2026.
class MealsPageTest : public ::testing::Test {
 protected:
  explicit MealsPageTest(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : session(locale) {
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    for (auto *door : {&navigator.OpenFoodSetup, &navigator.OpenNutrientSelection, &navigator.OpenTargets}) {
      *door = [this](QWidget *) { ++opened; };
    }
    doors.AddMeal = [this](QWidget *, const EntryOpening &opening) {
      if (addMeal) addMeal(opening);
    };
  }

  /// Something eaten of a food with round figures per serving: its calories are 100 times its number.
  int Eat(const QDate &date, int food, const QString &servings = QStringLiteral("1"), int mealType = 1,
          EntryKind entries = EntryKind::Eaten) {
    MealEntry entry{.date = date, .MealTypeID = mealType, .MealID = FoodID(food), .Amount = servings};
    const double factor = servings.toDouble();
    for (const auto &[id, perServing] : PerServing(food)) {
      entry.values[static_cast<std::size_t>(id - 1)] = IsPercentOfCalories(id) ? perServing : perServing * factor;
    }
    return AddRecMeal(*session, entries, entry);
  }
  /// A serving of food n of the person's own: 100 * n calories, of which 10 * n from fat; n grams of carbs.
  static std::vector<std::pair<int, double>> PerServing(int n) {
    return {{nutrient_id::calories, 100 * n},
            {nutrient_id::carbs, n},
            {nutrient_id::calFromFat, 10 * n},
            {nutrient_id::calFromFatPct, 10}};
  }
  int FoodID(int n) {
    const int mealID = 100000 + n;
    if (foods.contains(n)) return mealID;
    foods.append(n);
    session.Data().Execute(
        QStringLiteral("INSERT INTO meals_list ( MealID, MealDesc, RecordTypeID, MealGroupID, Calories, Carbs, "
                       "CalFromFat, CalFromFatPct, NetCarbs ) VALUES ( ?, ?, 2, 1, ?, ?, ?, 10, ? );"),
        {mealID, QStringLiteral("Aaa food %1").arg(n), 100 * n, n, 10 * n, n});
    return mealID;
  }
  /// Shows these nutrients, all with daily totals; 0 is an empty place, and so are those behind them.
  void ShowNutrients(const QList<int> &ids) {
    for (int place = 0; place < shownNutrients; ++place) {
      const int id = ids.value(place);
      SelectedNutrient &shown = session->nutrients.SelectedNutrients[static_cast<std::size_t>(place)];
      shown = {id, id == 0 ? QString() : QStringLiteral("N%1").arg(id), id != 0, {}};
    }
  }
  void Open(const JournalKind &kind = JournalKind::Diary(), const QDate &date = QDate(2026, 3, 1),
            const QSize &size = {1000, 500}) {
    day = std::make_unique<JournalDay>(*session, kind, date);
    day->mayLeave = [this] { return page->SaveOpenEdit() == EditOutcome::Saved; };
    parts.emplace(*session, navigator, doors, *day);
    page = new MealsPage(*parts, &window);
    page->setGeometry({{}, size});
    window.resize(size);
    window.show();
    page->show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    page->TakeFocus();
    QApplication::processEvents();
  }

  BoundGrid &Grid() { return *page->Grid(); }
  QModelIndex Cell(qint64 key, const char *column) {
    return Grid().Model().index(Grid().Model().RowOfKey(key), Grid().Model().ColumnByName(QLatin1String(column)));
  }
  std::string Text(qint64 key, const char *column) { return Cell(key, column).data().toString().toStdString(); }
  std::string Total(int position) {
    return Find<TotalsStrip>(*page, QStringLiteral("grdMealTotals"))
        .Text(QStringLiteral("Total%1").arg(position))
        .toStdString();
  }
  std::string Target(int position) {
    return Find<TotalsStrip>(*page, QStringLiteral("grdMealTargets"))
        .Text(QStringLiteral("Total%1").arg(position))
        .toStdString();
  }
  std::string Label(const char *name) { return Find<QLabel>(*page, QLatin1String(name)).text().toStdString(); }
  std::string Stored(const char *field, int recordID) {
    return session
        .ValueOf(QLatin1String(field), QStringLiteral("meals"),
                 QStringLiteral("PersonID=1 AND RecordID=%1").arg(recordID))
        .toStdString();
  }
  QWidget &Focus() { return QApplication::focusWidget() ? *QApplication::focusWidget() : Grid(); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&Focus(), key, modifiers);
    QApplication::processEvents();
  }
  void GoTo(qint64 key, const char *column) {
    Grid().setFocus();
    Grid().Selection().GoTo(Cell(key, column));
  }
  /// Types over a cell and leaves it with a key.
  void Type(qint64 key, const char *column, const QString &text, Qt::Key leave = Qt::Key_Tab,
            const std::function<void()> &beforeLeaving = {}) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    GoTo(key, column);
    Press(Qt::Key_F2);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Backspace);
    QTest::keyClicks(&Focus(), text);
    if (beforeLeaving) beforeLeaving();
    Press(leave);
  }
  void ClickRow(qint64 key, const char *column) {
    const QPoint place = Grid().viewport()->mapTo(&window, Grid().visualRect(Cell(key, column)).center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    QApplication::processEvents();
  }

  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  std::function<void(const EntryOpening &opening)> addMeal;  ///< what the add dialog does
  int opened = 0;                                            ///< doors gone through
  std::unique_ptr<JournalDay> day;
  std::optional<JournalParts> parts;
  QList<int> foods;  ///< made so far
  QWidget window;
  MealsPage *page = nullptr;
};

}  // namespace trimlog
