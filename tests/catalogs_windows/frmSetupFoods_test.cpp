#include "catalogs/windows/frmSetupFoods.h"

#include <QTabWidget>

#include "catalogs/food_catalog.h"
#include "catalogs/nutrient_selection.h"
#include "core/windows/controls/grid_menu.h"
#include "food_windows_fixture.h"

namespace trimlog {
namespace {

class SetupFoodsTest : public FoodWindowTest {
 protected:
  BoundGrid &List() { return Find<BoundGrid>(window, "grdMealsList"); }
  BoundGrid &Found() { return Find<BoundGrid>(window, "grdMealsSearch"); }
  static QString Name(const BoundGrid &grid, int row) {
    return grid.Model().FieldOf(row, QStringLiteral("MealDesc")).toString();
  }
  void Choose(const QString &combo, const QVariant &key) {
    QComboBox &box = Find<QComboBox>(window, combo);
    box.setCurrentIndex(box.findData(key));
    Q_EMIT box.activated(box.currentIndex());
  }
  int AddOwn(const QString &name) {
    FoodRecord food;
    food.MealDesc = name;
    food.MealGroupID = 1;
    return AddFood(*session, food);
  }
  void Search(const QString &words) {
    Find<QTabWidget>(window, "SSTab1").setCurrentIndex(1);
    QLineEdit &field = Find<QLineEdit>(window, "txtFind");
    field.setText(words);
    QTest::keyClick(&field, Qt::Key_Return);
  }
  /// Opens the grids' menu on a cell and runs a command of it.
  void RunFromMenu(BoundGrid &grid, int row, const QString &column, const char *command) {
    grid.setCurrentIndex(grid.Model().index(row, grid.Model().ColumnByName(column)));
    Q_EMIT grid.MenuWanted({});
    GridMenu &menu = *window.findChild<GridMenu *>();
    menu.hide();
    QAction *action = menu.findChild<QAction *>(QLatin1String(command));
    ASSERT_TRUE(action && action->isEnabled()) << command;
    action->trigger();
  }
  void ShowNutrient(std::size_t position, int nutrientID) {
    NutrientSelection selection = ReadNutrientSelection(*session);
    selection[position] = {nutrientID, QStringLiteral("New"), true, {}};
    SaveNutrientSelection(*session, selection);
  }
  bool Enabled(const QString &button) { return Find<QPushButton>(window, button).isEnabled(); }

  frmSetupFoods window{*session, navigator, nullptr};
};

TEST_F(SetupFoodsTest, ListsSortsAndJumps) {
  EXPECT_EQ(List().Model().RecordCount(), 8791);
  EXPECT_EQ(List().CurrentColumn(), "MealDesc") << "not the empty column before it";
  EXPECT_EQ(Find<QLabel>(window, "lblFoods").text(), "Food Description                        8791 Foods Displayed");
  Choose("cboMealGroups", 7);
  EXPECT_TRUE(List().isColumnHidden(List().Model().ColumnByName("MealGroupID")));
  Choose("cboSort", "-Protein");
  double before = 1e9;
  for (int row = 0; row < 10; ++row) {
    const double protein = ReadFood(*session, static_cast<int>(*List().Model().KeyOfRow(row))).nutrients.OrZero(4);
    EXPECT_LE(protein, before);
    before = protein;
  }
  QComboBox &sort = Find<QComboBox>(window, "cboSort");
  const int chosen = sort.currentIndex();
  Choose("cboSort", "-2");
  EXPECT_EQ(sort.currentIndex(), chosen) << "a separator is no choice";

  Choose("cboSort", "0");
  Choose("cboMealGroups", -1);
  Click(window, "cmdAplha");
  EXPECT_EQ(Find<QPushButton>(window, "cmdAplha").text(), "A - Z  <<");
  Find<QAbstractButton>(window, "pshAplha(16)").click();
  EXPECT_TRUE(Name(List(), List().currentIndex().row()).startsWith("Q", Qt::CaseInsensitive));
}

TEST_F(SetupFoodsTest, ArrowKeysPassTheSeparators) {
  QComboBox &sort = Find<QComboBox>(window, "cboSort");
  QTest::keyClick(&sort, Qt::Key_Down);
  EXPECT_EQ(sort.currentData(), "Calories");
  EXPECT_EQ(ReadFood(*session, static_cast<int>(*List().Model().KeyOfRow(0))).nutrients.OrZero(1), 0);
  QTest::keyClick(&sort, Qt::Key_Up);
  EXPECT_EQ(sort.currentData(), "0");
}

TEST_F(SetupFoodsTest, TheSortBoxFollowsAClickOnACaption) {
  const QComboBox &sort = Find<QComboBox>(window, "cboSort");
  EXPECT_TRUE(List().SortBy("Nut2", true));
  EXPECT_EQ(sort.currentData(), "-Fat");
  EXPECT_TRUE(List().SortBy("MealDesc", false));
  EXPECT_EQ(sort.currentData(), "0");
}

TEST_F(SetupFoodsTest, ANutrientThatIsNotShownAnyMoreOrdersNothing) {
  Choose("cboSort", "-Protein");
  Search("cheddar");
  EXPECT_TRUE(Found().SortBy("Nut9", true));  // protein
  ShowNutrient(0, 7);
  EXPECT_EQ(Find<QComboBox>(window, "cboSort").currentData(), "-Protein") << "still shown";
  ShowNutrient(8, 12);
  EXPECT_EQ(Find<QComboBox>(window, "cboSort").currentData(), "0");
  EXPECT_EQ(Find<QComboBox>(window, "cboSort").findData("-Protein"), -1);
  for (const BoundGrid *grid : {&List(), &Found()}) {
    EXPECT_EQ(grid->Model().Source().order.first().field, "MealDesc");
    EXPECT_EQ(grid->Model().headerData(grid->Model().ColumnByName("Nut9"), Qt::Horizontal).toString(), "New\n(mg)");
  }
  ShowNutrient(8, 0);
  EXPECT_TRUE(List().isColumnHidden(List().Model().ColumnByName("Nut9")));
}

TEST_F(SetupFoodsTest, RowsOfOneGridArePastedIntoTheOther) {
  Search("cheddar");
  const QString name = Name(Found(), 1);
  RunFromMenu(Found(), 1, "MealDesc", "mnuPM1CopyRowNormal");
  Choose("cboRecordTypeMeals", 2);
  AddOwn("Zzz");
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1PasteRow");
  ASSERT_EQ(List().Model().RecordCount(), 2);
  EXPECT_EQ(Name(List(), 0), name);
  EXPECT_EQ(Find<QLabel>(window, "lblFoods").text().right(17), "2 Foods Displayed");
  EXPECT_EQ(Found().Model().RecordCount(), 38) << "the search sees the new food too";

  session->windows.rowClipboard.kind = "datLinks";
  session.boxes.Expect("Unable to Copy Data",
                       "The data that was last copied was not of this type.  Please select and copy the corresponding "
                       "data that you would like to paste first.");
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1PasteRow");
  EXPECT_EQ(List().Model().RecordCount(), 2);
}

TEST_F(SetupFoodsTest, ARefusedRowIsCorrectedBeforeTheColumnsChange) {
  int opened = 0;
  navigator.OpenNutrientSelection = [&opened](QWidget *) { ++opened; };
  AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  List().Model().setData(List().Model().index(0, List().Model().ColumnByName("Nut2")), QStringLiteral("abc"));
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1Nutrients");
  EXPECT_EQ(opened, 0);
  List().UndoRow();
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1Nutrients");
  EXPECT_EQ(opened, 1);
}

TEST_F(SetupFoodsTest, ADoubleQuoteInADescriptionBreaksTheCopy) {
  session.Data().Execute("UPDATE meals_list SET MealDesc = ? WHERE (MealID=1);", {"A 5\" pie"});
  List().Refresh();
  List().GoToKey(1);
  session.boxes.Expect("Copy Selected Food?", "", BoxButton::Yes);
  session.boxes.Expect("Error Copying Food", "An error occurred while trying to copy this food.");
  Click(window, "cmdCopyMeal");
  EXPECT_EQ(session.ValueOf("MealID", "meals_list", "RecordTypeID=2"), "");
}

TEST_F(SetupFoodsTest, WithoutItsTablesTheWindowSaysSoAndCloses) {
  session.Data().Execute("DROP TABLE meal_groups;");
  session.boxes.Expect("Error Loading Setup Info", "An error occurred while loading your setup information.");
  frmSetupFoods broken(*session, navigator, nullptr);
  broken.show();
  EXPECT_FALSE(Find<QPushButton>(broken, "cmdNewMeal").isEnabled());
  Click(broken, "pnlFoodInfo");
  EXPECT_EQ(helpTopics, QStringList{"68"});
  Click(broken, "cmdOK");
  EXPECT_FALSE(broken.isVisible());
}

TEST_F(SetupFoodsTest, RecentFoodsKnowNoGroups) {
  Choose("cboMealGroups", 7);
  Choose("cboRecordTypeMeals", -3);
  EXPECT_FALSE(Find<QComboBox>(window, "cboMealGroups").isEnabled());
  EXPECT_EQ(Find<QComboBox>(window, "cboMealGroups").currentData().toInt(), -1);
  EXPECT_EQ(List().Model().RecordCount(), 0);
}

TEST_F(SetupFoodsTest, SearchesWithEnter) {
  Search("cheddar");
  EXPECT_GT(Found().Model().RecordCount(), 5);
  EXPECT_EQ(Find<QLabel>(window, "lblFoodsFound").text(),
            QStringLiteral("Food Description  (%1 foods found)").arg(Found().Model().RecordCount()));
  EXPECT_FALSE(Enabled("cmdNewMeal"));
  Search("  \" ");
  EXPECT_EQ(Find<QLabel>(window, "lblFoodsFound").text(), "Food Description  (0 foods found)");
}

TEST_F(SetupFoodsTest, PreLoadedFoodsAreCopiedOwnOnesChangedAndDeleted) {
  Search("cheddar");
  Found().GoToKey(*Found().Model().KeyOfRow(0));
  EXPECT_TRUE(Enabled("cmdCopyMeal"));
  EXPECT_FALSE(Enabled("cmdDeleteMeal"));
  const QString name = Name(Found(), 0);
  session.boxes.Expect("Copy Selected Food?",
                       "Copy the following food: \n\n" + name + "\n\n to your personal \"My Foods\" list?",
                       BoxButton::Yes);
  Click(window, "cmdCopyMeal");

  Find<QTabWidget>(window, "SSTab1").setCurrentIndex(0);
  Choose("cboRecordTypeMeals", 2);
  ASSERT_EQ(List().Model().RecordCount(), 1);
  const qint64 copy = *List().Model().KeyOfRow(0);
  List().GoToKey(copy);
  EXPECT_TRUE(Enabled("cmdDeleteMeal"));
  EXPECT_FALSE(Enabled("cmdCopyMeal"));

  const int column = List().Model().ColumnByName("MealDesc");
  EXPECT_TRUE(List().Model().setData(List().Model().index(0, column), QStringLiteral("My 12\" cheddar")));
  EXPECT_TRUE(List().CommitRow());
  const QString where = QStringLiteral("MealID=%1").arg(copy);
  EXPECT_EQ(session.ValueOf("MealDesc", "meals_list", where), "My 12'' cheddar");
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", where), "-1");

  session.Data().Execute(
      "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, IsPlanned ) "
      "VALUES ( 1, 1, #3/1/2026#, 1, ?, \"1\", False );",
      {copy});
  const QString question =
      "When you delete this food from the list, any journal entries containing this food will also be deleted.  Are "
      "you "
      "sure you want to continue?";
  session.boxes.Expect("Warning: Delete Food?", question, BoxButton::No);
  Click(window, "cmdDeleteMeal");
  EXPECT_EQ(List().Model().RecordCount(), 1);
  session.boxes.Expect("Warning: Delete Food?", question, BoxButton::Yes);
  Click(window, "cmdDeleteMeal");
  EXPECT_EQ(List().Model().RecordCount(), 0);
  EXPECT_EQ(session.ValueOf("RecordID", "meals", where), "");
}

TEST_F(SetupFoodsTest, MarkedFoodsGoTogetherAndPreLoadedOnesStay) {
  const int one = AddOwn("Aaa one");
  const int two = AddOwn("Aaa two");
  List().MarkRows({one, two});
  session.boxes.Expect("Warning: Delete Food?", "When you delete these foods from the list", BoxButton::Yes);
  EXPECT_TRUE(List().DeleteSelected());
  EXPECT_EQ(session.ValueOf("MealID", "meals_list", QStringLiteral("MealID=%1").arg(two)), "");

  const int three = AddOwn("Aaa three");
  List().MarkRows({three, 1});
  session.boxes.Expect("Unable to Delete Meal", "The Pre-Loaded meals cannot be deleted.");
  EXPECT_FALSE(List().DeleteSelected());
  EXPECT_NE(session.ValueOf("MealID", "meals_list", QStringLiteral("MealID=%1").arg(three)), "");
}

TEST_F(SetupFoodsTest, ARefusedRowKeepsTheWindowOpen) {
  const int own = AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  window.show();
  List().GoToKey(own);
  const int fat = List().Model().ColumnByName("Nut2");
  EXPECT_FALSE(List().Model().setData(List().Model().index(0, fat), QStringLiteral("-3")));
  Click(window, "cmdOK");
  EXPECT_TRUE(window.isVisible());
  List().UndoRow();
  Click(window, "cmdOK");
  EXPECT_FALSE(window.isVisible());
}

TEST_F(SetupFoodsTest, OpensFastWhateverIsListed) {
  const qint64 before = session.Data().Counts().rowsRead;
  frmSetupFoods another(*session, navigator, nullptr);
  another.show();
  QApplication::processEvents();
  EXPECT_LT(session.Data().Counts().rowsRead - before, 600) << "keys of the first page and the rows in view";
}

}  // namespace
}  // namespace trimlog
