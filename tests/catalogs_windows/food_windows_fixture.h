#pragma once

#include "catalogs/food_catalog.h"
#include "core/session/navigator.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {

/// A session on the shipped foods, and the doors that food windows use.
class FoodWindowTest : public ::testing::Test {
 protected:
  explicit FoodWindowTest(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates)) : session(locale) {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    navigator.ShowHelp = [this](const QString &topic) { opened.append(topic); };
  }
  /// Shows a window as a person has it before them.
  static void Show(QWidget &window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  /// Types into a field and leaves it.
  static void TypeInto(QWidget &window, const QString &name, const QString &text) {
    QLineEdit &field = Find<QLineEdit>(window, name);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Tab);
  }
  static QString TextOf(QWidget &window, const QString &name) { return Find<QLineEdit>(window, name).text(); }
  static void Click(QWidget &window, const QString &name) {
    QPushButton &button = Find<QPushButton>(window, name);
    ASSERT_TRUE(button.isEnabled()) << name.toStdString();
    QTest::mouseClick(&button, Qt::LeftButton);
  }
  /// Chooses in a box as a person does: the focus goes there, and keys to the entry.
  static void Choose(QWidget &window, const QString &name, const QVariant &key) {
    QComboBox &box = Find<QComboBox>(window, name);
    box.setFocus();
    const int wanted = box.findData(key);
    ASSERT_GE(wanted, 0) << name.toStdString();
    for (int keys = 0; box.currentIndex() != wanted && keys < box.count(); ++keys) {
      const int before = box.currentIndex();
      QTest::keyClick(&box, before < wanted ? Qt::Key_Down : Qt::Key_Up);
      if (box.currentIndex() == before) return;  // it was taken back
    }
  }
  QString FoodValue(const QString &field, int mealID) {
    return session.ValueOf(field, "meals_list", QStringLiteral("MealID=%1").arg(mealID));
  }
  int AddOwn(const QString &name, int group = 1) {
    FoodRecord food;
    food.MealDesc = name;
    food.MealGroupID = group;
    return AddFood(*session, food);
  }

  TestSession session;
  Navigator navigator;
  QStringList opened;  ///< doors and help pages
};

}  // namespace trimlog
