#pragma once

#include "catalogs/windows/frmSetupFoods.h"
#include "core/windows/controls/grid_menu.h"
#include "food_windows_fixture.h"

namespace trimlog {

/// Food Setup on the screen, with ways to act in it.
class SetupFoodsTest : public FoodWindowTest {
 protected:
  SetupFoodsTest() {
    navigator.OpenRecipes = [this](QWidget *) { opened.append("recipes"); };
    navigator.OpenNutrientSelection = [this](QWidget *) { opened.append("nutrients"); };
    window = std::make_unique<frmSetupFoods>(*session, navigator, nullptr);
    Show(*window);
  }
  BoundGrid &List() { return Find<BoundGrid>(*window, "grdMealsList"); }
  BoundGrid &Found() { return Find<BoundGrid>(*window, "grdMealsSearch"); }
  static QString Name(const BoundGrid &grid, int row) { return grid.Model().FieldOf(row, "MealDesc").toString(); }
  void Choose(const QString &box, const QVariant &key) { FoodWindowTest::Choose(*window, box, key); }
  QVariant Chosen(const QString &box) { return Find<QComboBox>(*window, box).currentData(); }
  void Click(const QString &button) { FoodWindowTest::Click(*window, button); }
  void ClickTab(int tab) {
    QTabBar &bar = *Find<QTabWidget>(*window, "SSTab1").tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
  }
  static void ClickCaption(BoundGrid &grid, const QString &column) {
    QHeaderView &captions = *grid.horizontalHeader();
    const int section = grid.Model().ColumnByName(column);
    grid.scrollTo(grid.Model().index(0, section));
    QTest::mouseClick(captions.viewport(), Qt::LeftButton, {},
                      {captions.sectionViewportPosition(section) + 12, captions.height() / 2});
  }
  static void ClickRow(BoundGrid &grid, int row, bool twice = false) {
    const QModelIndex cell = grid.Model().index(row, grid.Model().ColumnByName("MealDesc"));
    grid.scrollTo(cell);
    const QPoint place = grid.visualRect(cell).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place);
  }
  /// Types into a cell; Enter leaves it, and with it its row when it is the only one that can be changed.
  static void TypeInCell(BoundGrid &grid, int row, const QString &column, const QString &text) {
    grid.setFocus();
    grid.setCurrentIndex(grid.Model().index(row, grid.Model().ColumnByName(column)));
    QTest::keyClick(&grid, Qt::Key_F2);
    QWidget *editor = QApplication::focusWidget();
    ASSERT_NE(editor, &grid) << "no editor came";
    static_cast<QLineEdit *>(editor)->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
  }
  void Search(const QString &words) {
    ClickTab(1);
    QLineEdit &field = Find<QLineEdit>(*window, "txtFind");
    field.setText(words);
    QTest::keyClick(&field, Qt::Key_Return);
  }
  /// Opens the grids' menu on a cell and runs a command of it.
  void RunFromMenu(BoundGrid &grid, int row, const QString &column, const char *command) {
    grid.setCurrentIndex(grid.Model().index(row, grid.Model().ColumnByName(column)));
    Q_EMIT grid.MenuWanted({});
    GridMenu &menu = *window->findChild<GridMenu *>();
    menu.hide();
    QAction *action = menu.findChild<QAction *>(command);
    ASSERT_TRUE(action && action->isEnabled()) << command;
    action->trigger();
  }
  bool Enabled(const QString &button) { return Find<QPushButton>(*window, button).isEnabled(); }

  std::unique_ptr<frmSetupFoods> window;
};

}  // namespace trimlog
