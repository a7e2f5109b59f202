// Food Setup: its lists, its search, its buttons.

#include "catalogs/nutrient_selection.h"
#include "setup_foods_fixture.h"

namespace trimlog {
namespace {

TEST_F(SetupFoodsTest, ListsSortsAndJumps) {
  EXPECT_EQ(List().Model().RecordCount(), 8791);
  EXPECT_EQ(List().CurrentColumn(), "MealDesc");
  EXPECT_TRUE(List().isColumnHidden(0)) << "no empty column before the names";
  EXPECT_EQ(Find<QLabel>(*window, "lblFoods").text(), "Food Description                        8791 Foods Displayed");
  Choose("cboMealGroups", 7);
  EXPECT_TRUE(List().isColumnHidden(List().Model().ColumnByName("MealGroupID")));
  const int inGroup = List().Model().RecordCount();
  EXPECT_LT(inGroup, 8791);
  EXPECT_TRUE(Find<QLabel>(*window, "lblFoods").text().endsWith(QStringLiteral(" %1 Foods Displayed").arg(inGroup)));
  Choose("cboMealGroups", -1);
  EXPECT_FALSE(List().isColumnHidden(List().Model().ColumnByName("MealGroupID")));

  QWidget &letters = *Find<QAbstractButton>(*window, "pshAplha(16)").parentWidget();
  EXPECT_FALSE(letters.isVisible());
  Click("cmdAplha");
  EXPECT_EQ(Find<QPushButton>(*window, "cmdAplha").text(), "A - Z  <<");
  EXPECT_TRUE(letters.isVisible());
  for (const auto &[button, letter] : {std::pair(0, "A"), std::pair(16, "Q"), std::pair(25, "Z")}) {
    QTest::mouseClick(&Find<QAbstractButton>(*window, QStringLiteral("pshAplha(%1)").arg(button)), Qt::LeftButton);
    EXPECT_TRUE(Name(List(), List().currentIndex().row()).startsWith(letter, Qt::CaseInsensitive)) << letter;
    EXPECT_TRUE(button != 16 || List().rowAt(0) == List().currentIndex().row()) << "at the top";
  }
  Click("cmdAplha");
  EXPECT_EQ(Find<QPushButton>(*window, "cmdAplha").text(), "A - Z  >>");
  EXPECT_FALSE(letters.isVisible());
}

TEST_F(SetupFoodsTest, TheSortBoxAndTheCaptionsSayTheSame) {
  QComboBox &sort = Find<QComboBox>(*window, "cboSort");
  const auto order = [this] { return List().Model().Source().order.first(); };
  sort.setFocus();
  QTest::keyClick(&sort, Qt::Key_Down);
  EXPECT_EQ(sort.currentData(), "Calories") << "past the separator";
  EXPECT_EQ(order(), (GridOrder{"Calories"}));
  QTest::keyClick(&sort, Qt::Key_Up);
  EXPECT_EQ(sort.currentData(), "0");

  ClickCaption(List(), "Nut2");
  EXPECT_EQ(sort.currentData(), "Fat");
  ClickCaption(List(), "Nut2");
  EXPECT_EQ(sort.currentData(), "-Fat");
  EXPECT_EQ(order(), (GridOrder{"Fat", true}));
  Choose("cboMealGroups", 7);
  EXPECT_EQ(order(), (GridOrder{"Fat", true})) << "another group does not fall back to an older order";
  EXPECT_EQ(sort.currentData(), "-Fat");

  ClickCaption(List(), "Amount");
  EXPECT_EQ(sort.currentIndex(), -1) << "the box has no name for this order";
  EXPECT_EQ(sort.placeholderText(), "Serving Size");
  Choose("cboMealGroups", -1);
  EXPECT_EQ(order(), (GridOrder{"Amount"}));
  Choose("cboSort", "0");
  EXPECT_EQ(order(), (GridOrder{"MealDesc"}));

  const int separator = sort.findData("-2");
  sort.setCurrentIndex(separator);
  EXPECT_EQ(sort.currentData(), "0") << "a separator is no choice";
}

TEST_F(SetupFoodsTest, ARefusedCellPutsTheBoxesBack) {
  AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  TypeInCell(List(), 0, "Nut2", "-3");
  for (const auto &[box, key] :
       {std::pair("cboRecordTypeMeals", QVariant(1)), std::pair("cboRecordTypeMeals", QVariant(-3)),
        std::pair("cboMealGroups", QVariant(7)), std::pair("cboSort", QVariant("Calories"))}) {
    const QVariant before = Chosen(box);
    Choose(box, key);
    EXPECT_EQ(Chosen(box), before) << box;
    EXPECT_EQ(List().Model().RecordCount(), 1) << box;
    EXPECT_TRUE(Find<QComboBox>(*window, "cboMealGroups").isEnabled());
  }
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_Escape);
  Choose("cboRecordTypeMeals", 1);
  EXPECT_EQ(Chosen("cboRecordTypeMeals"), 1);
  EXPECT_EQ(List().Model().RecordCount(), 8791);
}

TEST_F(SetupFoodsTest, ANutrientThatIsNotShownAnyMoreOrdersNothing) {
  const auto show = [this](std::size_t position, int nutrientID) {
    NutrientSelection selection = ReadNutrientSelection(*session);
    selection[position] = {nutrientID, "New", true, {}};
    SaveNutrientSelection(*session, selection);
  };
  Choose("cboSort", "-Protein");
  Search("cheddar");
  ClickCaption(Found(), "Nut9");  // protein
  show(0, 7);
  EXPECT_EQ(Chosen("cboSort"), "-Protein") << "still shown";
  show(8, 12);
  EXPECT_EQ(Chosen("cboSort"), "0");
  EXPECT_EQ(Find<QComboBox>(*window, "cboSort").findData("-Protein"), -1);
  for (const BoundGrid *grid : {&List(), &Found()}) {
    EXPECT_EQ(grid->Model().Source().order.first().field, "MealDesc");
    EXPECT_EQ(grid->Model().headerData(grid->Model().ColumnByName("Nut9"), Qt::Horizontal).toString(), "New\n(mg)");
  }
  show(8, 0);
  EXPECT_TRUE(List().isColumnHidden(List().Model().ColumnByName("Nut9")));
}

TEST_F(SetupFoodsTest, TabReachesEveryControlAndAccessKeysPress) {
  AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  QStringList reached;
  List().setFocus();
  for (int keys = 0; keys < 60 && reached.count("cmdOK") == 0; ++keys) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    reached.append(QApplication::focusWidget()->objectName());
  }
  QStringList buttons = reached.filter(QRegularExpression("^(cmd|pnl)"));
  EXPECT_EQ(buttons.join(' '),
            "cmdNewMeal cmdDeleteMeal cmdAllNutrients cmdPrintMeals cmdRecipes pnlFoodInfo cmdTipsFoods cmdHelp cmdOK");

  QStringList keys;
  for (const QPushButton *button : window->findChildren<QPushButton *>()) {
    if (!button->isVisible()) continue;
    EXPECT_FALSE(button->shortcut().isEmpty()) << button->objectName().toStdString();
    keys.append(button->shortcut().toString());
  }
  for (const QLabel *label : window->findChildren<QLabel *>()) {
    if (label->isVisible() && label->buddy()) keys.append(QKeySequence::mnemonic(label->text()).toString());
  }
  EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << keys.join(' ').toStdString();

  for (const char *caption : {"A - Z  <<", "A - Z  >>"}) {
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QPushButton>(*window, "cmdAplha").text() == caption; })) << caption;
  }
  for (const auto &[key, page] : {std::pair(Qt::Key_F, "68"), std::pair(Qt::Key_T, "tips_foods"),
                                  std::pair(Qt::Key_H, "foods"), std::pair(Qt::Key_R, "recipes")}) {
    QTest::keyClick(window.get(), key, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this, page = page] { return opened.contains(page); })) << page;
  }
  QTest::keyClick(window.get(), Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }));
}

TEST_F(SetupFoodsTest, ANewFoodIsShownByTheListThatHoldsIt) {
  struct Case {
    int list, group;
    QVariant chosen;  ///< the group of the new food; none: as proposed
    int shownList, shownGroup;
  };
  const std::vector<Case> cases = {
      {-1, -1, {}, -1, -1}, {1, -1, {}, 2, -1}, {-3, -1, 7, 2, -1}, {2, 7, 3, 2, 3}, {-1, 7, {}, -1, 7}};
  for (const Case &c : cases) {
    Choose("cboRecordTypeMeals", c.list);
    if (c.group != Chosen("cboMealGroups").toInt()) Choose("cboMealGroups", c.group);
    WhenModal([&c](QWidget &dialog) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      EXPECT_EQ(dialog.windowTitle(), "Create a New Food or Meal");
      EXPECT_EQ(Find<QComboBox>(dialog, "cboMealGroups").currentData(), c.group < 0 ? 18 : c.group);
      TypeInto(dialog, "txtMealDesc", "Zucchini of mine");
      if (c.chosen.isValid()) FoodWindowTest::Choose(dialog, "cboMealGroups", c.chosen);
      FoodWindowTest::Click(dialog, "cmdOK");
    });
    Click("cmdNewMeal");
    EXPECT_EQ(Chosen("cboRecordTypeMeals"), c.shownList) << c.list << " " << c.group;
    EXPECT_EQ(Chosen("cboMealGroups"), c.shownGroup) << c.list << " " << c.group;
    EXPECT_EQ(List().CurrentField("MealDesc"), "Zucchini of mine") << c.list << " " << c.group;
  }
}

TEST_F(SetupFoodsTest, PastedRowsThatAreNotListedKeepThePlace) {
  Choose("cboRecordTypeMeals", 1);
  ClickRow(List(), 5);
  const qint64 place = *List().CurrentKey();
  RunFromMenu(List(), 5, "MealDesc", "mnuPM1CopyRowNormal");
  RunFromMenu(List(), 5, "MealDesc", "mnuPM1PasteRow");
  EXPECT_EQ(List().Model().RecordCount(), 8791);
  EXPECT_EQ(List().CurrentKey(), place);
  EXPECT_TRUE(Enabled("cmdCopyMeal") && Enabled("cmdAllNutrients"));
  Choose("cboRecordTypeMeals", 2);
  EXPECT_EQ(Name(List(), 0), session.ValueOf("MealDesc", "meals_list", QStringLiteral("MealID=%1").arg(place)));
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
  EXPECT_EQ(Find<QLabel>(*window, "lblFoods").text().right(17), "2 Foods Displayed");
  EXPECT_EQ(Found().Model().RecordCount(), 38) << "the search sees the new food too";

  session->windows.rowClipboard.kind = "datLinks";
  session.boxes.Expect("Unable to Copy Data",
                       "The data that was last copied was not of this type.  Please select and copy the corresponding "
                       "data that you would like to paste first.");
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1PasteRow");
  EXPECT_EQ(List().Model().RecordCount(), 2);
}

TEST_F(SetupFoodsTest, ARefusedRowIsCorrectedBeforeTheColumnsChange) {
  AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  TypeInCell(List(), 0, "Nut2", "abc");
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1Nutrients");
  EXPECT_TRUE(opened.isEmpty());
  List().UndoRow();
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1Nutrients");
  EXPECT_EQ(opened, QStringList{"nutrients"});
}

TEST_F(SetupFoodsTest, ADoubleQuoteInADescriptionBreaksTheCopy) {
  session.Data().Execute("UPDATE meals_list SET MealDesc = ? WHERE (MealID=1);", {"A 5\" pie"});
  List().Refresh();
  List().GoToKey(1);
  session.boxes.Expect("Copy Selected Food?", "", BoxButton::Yes);
  session.boxes.Expect("Error Copying Food", "An error occurred while trying to copy this food.");
  Click("cmdCopyMeal");
  EXPECT_EQ(session.ValueOf("MealID", "meals_list", "RecordTypeID=2"), "");
}

TEST_F(SetupFoodsTest, WithoutItsTablesTheWindowSaysSoAndCloses) {
  session.Data().Execute("DROP TABLE meal_groups;");
  session.boxes.Expect("Error Loading Setup Info", "An error occurred while loading your setup information.");
  frmSetupFoods broken(*session, navigator, nullptr);
  broken.show();
  EXPECT_FALSE(Find<QPushButton>(broken, "cmdNewMeal").isEnabled());
  FoodWindowTest::Click(broken, "pnlFoodInfo");
  EXPECT_EQ(opened, QStringList{"68"});
  FoodWindowTest::Click(broken, "cmdOK");
  EXPECT_FALSE(broken.isVisible());
}

TEST_F(SetupFoodsTest, RecentFoodsKnowNoGroups) {
  Choose("cboMealGroups", 7);
  Choose("cboRecordTypeMeals", -3);
  EXPECT_FALSE(Find<QComboBox>(*window, "cboMealGroups").isEnabled());
  EXPECT_EQ(Chosen("cboMealGroups"), -1);
  EXPECT_EQ(List().Model().RecordCount(), 0);
  for (const char *button : {"cmdDeleteMeal", "cmdCopyMeal", "cmdAllNutrients", "cmdPrintMeals"}) {
    EXPECT_FALSE(Enabled(button)) << button;
  }
  Choose("cboRecordTypeMeals", 1);
  EXPECT_TRUE(Find<QComboBox>(*window, "cboMealGroups").isEnabled());
}

TEST_F(SetupFoodsTest, SearchesWithEnterAndWithItsButton) {
  Search("cheddar");
  EXPECT_EQ(Found().Model().RecordCount(), 37);
  EXPECT_EQ(Find<QLabel>(*window, "lblFoodsFound").text(), "Food Description  (37 foods found)");
  EXPECT_FALSE(Enabled("cmdNewMeal"));
  Find<QLineEdit>(*window, "txtFind").setText("  \" ");
  Click("cmdFindFirst");
  EXPECT_EQ(Find<QLabel>(*window, "lblFoodsFound").text(), "Food Description  (0 foods found)");
  EXPECT_EQ(Found().Model().RecordCount(), 0);
  EXPECT_FALSE(QGuiApplication::overrideCursor());
  ClickTab(0);
  EXPECT_TRUE(Enabled("cmdNewMeal"));
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(SetupFoodsTest, IsSpokenAndFitsASmallScreen) {
  Choose("cboRecordTypeMeals", 2);
  Search("qwxyz");
  for (const auto &[label, said] : {std::pair("lblFoods", "Food Description 0 Foods Displayed"),
                                    std::pair("lblFoodsFound", "Food Description (0 foods found)")}) {
    QAccessibleInterface *line = QAccessible::queryAccessibleInterface(&Find<QLabel>(*window, label));
    EXPECT_EQ(line->role(), QAccessible::Notification) << "read out when it changes";
    EXPECT_EQ(line->text(QAccessible::Name), said);
  }
  ClickTab(0);
  Click("cmdAplha");
  EXPECT_LE(window->minimumSizeHint().width(), 620) << "a screen of 1280 points at twice the size";
}

TEST_F(SetupFoodsTest, ShowsAndEditsAllNutrients) {
  const int own = AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  const auto change = [](const QString &fat) {
    WhenModal([fat](QWidget &dialog) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
      EXPECT_EQ(dialog.windowTitle(), "View/Edit All Nutrients");
      TypeInto(dialog, "txtAddRec0(3)", fat);
      FoodWindowTest::Click(dialog, "cmdOK");
    });
  };
  change("12");
  Click("cmdAllNutrients");
  EXPECT_EQ(FoodValue("Fat", own), "12");
  EXPECT_EQ(List().Model().FieldOf(0, "Fat"), 12) << "the list sees it";

  Choose("cboRecordTypeMeals", 1);
  const int shipped = static_cast<int>(*List().Model().KeyOfRow(3));
  change("13");
  ClickRow(List(), 3, true);  // a double click on what cannot be changed in place
  EXPECT_EQ(FoodValue("Fat", shipped), "13");
  EXPECT_EQ(FoodValue("IsModified", shipped), "-1");
}

TEST_F(SetupFoodsTest, PrintsWhatTheTabLists) {
  Choose("cboRecordTypeMeals", 2);
  AddOwn("Aaa own");
  Click("cmdPrintMeals");
  ASSERT_EQ(session.printing.lists.size(), 1u);
  EXPECT_EQ(session.printing.lists[0].rows, 1);
  EXPECT_EQ(session.printing.lists[0].cell(0, 0), "Aaa own");
  Search("cheddar");
  Click("cmdPrintMeals");
  ASSERT_EQ(session.printing.lists.size(), 2u);
  EXPECT_EQ(session.printing.lists[1].rows, Found().Model().rowCount());
  session.printing.broken = true;
  session.boxes.Expect("Printer Error",
                       "An error occurred while printing to your default printer.  Unable to print at this time.");
  Click("cmdPrintMeals");
}

TEST_F(SetupFoodsTest, EachFailedCommandSaysSo) {
  const QString loading = "An error occurred while loading your setup information.";
  AddOwn("Aaa own");
  Choose("cboRecordTypeMeals", 2);
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1CopyRowNormal");
  TypeInCell(List(), 0, "MealDesc", "Another name");
  session.Data().Execute("DROP TABLE meals_list;");
  session.boxes.Expect("Error Saving Food", "An error occurred while saving this food.  ");
  EXPECT_FALSE(List().CommitRow());
  EXPECT_EQ(Name(List(), 0), "Another name") << "what was typed is not lost";
  List().UndoRow();
  session.boxes.Expect("Warning: Delete Food?", "", BoxButton::Yes);
  session.boxes.Expect("Error Deleting Food", "An error occurred while deleting.  No food was deleted.  ");
  EXPECT_FALSE(List().DeleteSelected());
  session.boxes.Expect("Error Pasting Foods", "An error occurred while pasting.  No food was added.  ");
  RunFromMenu(List(), 0, "MealDesc", "mnuPM1PasteRow");
  session.boxes.Expect("Error Loading Setup Info", loading);
  Click("cmdAllNutrients");
  session.boxes.Expect("Error Loading Setup Info", loading);
  Choose("cboRecordTypeMeals", 1);
  EXPECT_EQ(Chosen("cboRecordTypeMeals"), 2) << "the box says what the list shows";
  session.boxes.Expect("Error Loading Setup Info", loading);
  Search("cheddar");
  session.Data().Execute("DROP TABLE meal_groups;");
  ClickTab(0);
  session.boxes.Expect("Error Loading Setup Info", loading);
  Click("cmdNewMeal");
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
  Click("cmdCopyMeal");

  ClickTab(0);
  Choose("cboRecordTypeMeals", 2);
  ASSERT_EQ(List().Model().RecordCount(), 1);
  const qint64 copy = *List().Model().KeyOfRow(0);
  List().GoToKey(copy);
  EXPECT_TRUE(Enabled("cmdDeleteMeal"));
  EXPECT_FALSE(Enabled("cmdCopyMeal"));

  QStringList told;
  QObject::connect(&session->changes, &DataChanges::Changed, [&told](const DataChange &change) {
    told.append(change.table == Table::MealsList ? "foods" : change.table == Table::Meals ? "entries" : "?");
  });
  TypeInCell(List(), 0, "MealDesc", "My 12\" cheddar");
  EXPECT_TRUE(List().CommitRow());
  EXPECT_EQ(told, QStringList{"foods"});
  EXPECT_EQ(Name(Found(), Found().Model().RowOfKey(copy)), "My 12'' cheddar") << "the other list follows";
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
  Click("cmdDeleteMeal");
  EXPECT_EQ(List().Model().RecordCount(), 1);
  session.boxes.Expect("Warning: Delete Food?", question, BoxButton::Yes);
  Click("cmdDeleteMeal");
  EXPECT_EQ(List().Model().RecordCount(), 0);
  EXPECT_EQ(session.ValueOf("RecordID", "meals", where), "");
  told.sort();
  EXPECT_EQ(told, (QStringList{"entries", "foods", "foods"}));
  EXPECT_EQ(Found().Model().RecordCount(), 37) << "the other list follows";
  EXPECT_TRUE(Find<QLabel>(*window, "lblFoodsFound").text().contains("37"));
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
  List().GoToKey(own);
  const int fat = List().Model().ColumnByName("Nut2");
  EXPECT_FALSE(List().Model().setData(List().Model().index(0, fat), "-3"));
  Click("cmdOK");
  EXPECT_TRUE(window->isVisible());
  List().UndoRow();
  Click("cmdOK");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(SetupFoodsTest, NamesTakeTheSpareWidthAndWidthsAreKept) {
  window->resize(2400, 700);
  QApplication::processEvents();
  EXPECT_EQ(List().horizontalHeader()->length(), List().viewport()->width());
  List().setColumnWidth(List().Model().ColumnByName("Nut1"), 123);
  window->hide();
  EXPECT_EQ(session.store->GetSettingLong(settingsRoot + "\\Grids\\grdMealsList", "Nut1", 0), 123);
}

TEST_F(SetupFoodsTest, OpensFastWhateverIsListed) {
  window->hide();
  const qint64 before = session.Data().Counts().rowsRead;
  frmSetupFoods another(*session, navigator, nullptr);
  another.show();
  another.grab();  // paints it, and runs nothing that waits for that
  EXPECT_LT(session.Data().Counts().rowsRead - before, 600) << "keys of the first page and the rows in view";
}

}  // namespace
}  // namespace trimlog
