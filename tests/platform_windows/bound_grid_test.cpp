#include "grid_fixture.h"

namespace trimlog {
namespace {

TEST_F(GridTest, TypedValuesAreReadShownAndStoredByType) {
  struct Row {
    const char *column, *typed, *shown, *field, *stored;
  };
  for (const Row &row :
       {Row{"FoodDesc", "Say \"cheese\" 100%", "Say \"cheese\" 100%", "FoodDesc", "Say \"cheese\" 100%"},
        Row{"Nut1", "2.5", "2", "Calories", "2"}, Row{"Nut2", " 1.005 ", "1.01", "Fat", "1.005"},
        Row{"Nut2", "", "", "Fat", ""}, Row{"GroupID", "meats", "Meats", "GroupID", "2"},
        Row{"Bought", "2/9/2026", "2/9/2026", "Bought", "2026-02-09"}}) {
    EXPECT_TRUE(grid.Model().setData(Cell(8, row.column), row.typed)) << row.column;
    EXPECT_EQ(Text(8, row.column).toStdString(), row.shown);
    EXPECT_TRUE(grid.Model().SaveRow());
    EXPECT_EQ(Text(8, row.column).toStdString(), row.shown);
    EXPECT_EQ(Stored(row.field, 8).toStdString(), row.stored);
  }
}

class CommaGridTest : public GridTest {
 protected:
  CommaGridTest() : GridTest(10, QLocale(QLocale::German, QLocale::Germany)) {}
};

TEST_F(CommaGridTest, ACommaLocaleTypesAndSeesCommas) {
  EXPECT_TRUE(grid.Model().setData(Cell(3, "Nut2"), "93,5"));
  EXPECT_EQ(Text(3, "Nut2"), "93,50");
  EXPECT_EQ(Cell(3, "Nut2").data(Qt::EditRole).toString(), "93,5");
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(Stored("Fat", 3), "93.5");
}

TEST_F(GridTest, LeavingARowSavesItInOneCommit) {
  GoTo(3, "Nut1");
  Type("77");
  Press(Qt::Key_Tab);
  EXPECT_EQ(grid.CurrentColumn(), "Nut2");
  Type("1.25");
  EXPECT_EQ(Stored("Calories", 3), "997") << "nothing is written before the row is left";
  const qint64 before = file->Counts().commits;
  Press(Qt::Key_Down);
  EXPECT_EQ(file->Counts().commits, before + 1);
  EXPECT_EQ(grid.CurrentKey(), 4);
  EXPECT_EQ(Stored("Calories", 3), "77");
  EXPECT_EQ(Stored("Fat", 3), "1.25");
  Press(Qt::Key_Up);
  EXPECT_EQ(file->Counts().commits, before + 1) << "an unchanged row is not written";
}

TEST_F(GridTest, TicksAndListsAreChangedByKeys) {
  GoTo(3, "IsModified");
  Press(Qt::Key_Space);
  EXPECT_EQ(Cell(3, "IsModified").data(Qt::CheckStateRole).toInt(), Qt::Checked);
  GoTo(3, "GroupID");
  Press(Qt::Key_F2);
  Press(Qt::Key_Up);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Text(3, "GroupID"), "Fruits");
  Press(Qt::Key_Down);
  EXPECT_EQ(Stored("IsModified", 3), "-1");
  EXPECT_EQ(Stored("GroupID", 3), "1");
}

TEST_F(GridTest, JumpKeysMarkTheRowTheyComeTo) {
  GoTo(20, "Nut1");
  Press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(grid.CurrentKey(), 1);
  EXPECT_EQ(grid.CurrentColumn(), "FoodDesc") << "not the empty column before it";
  EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{1});
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{40});
  GoTo(37, "Nut1");
  Press(Qt::Key_Down);
  Press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(grid.MarkedKeys(), (std::vector<qint64>{38, 39, 40}));
  ASSERT_TRUE(grid.GoToKey(2));
  Press(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(grid.MarkedKeys(), (std::vector<qint64>{1, 2}));
  GoTo(40, "FoodDesc");
  Press(Qt::Key_End);
  EXPECT_EQ(grid.CurrentColumn(), "IsModified") << "not the empty column behind it";
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(grid.CurrentKey(), 40) << "Ctrl+Tab is for the pages around the grid";
  EXPECT_EQ(grid.CurrentColumn(), "IsModified");
}

TEST_F(GridTest, LeavingTheGridSavesTheRow) {
  QWidget window;
  auto *other = new QLineEdit(&window);
  grid.setParent(&window);
  window.show();
  grid.show();
  QApplication::setActiveWindow(&window);
  grid.setFocus();
  GoTo(3, "Nut1");
  Type("12");
  other->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(Stored("Calories", 3), "12");
  grid.setParent(nullptr);
}

TEST_F(GridTest, AnEditSavesUnderItsKeyAfterResorting) {
  GoTo(7, "FoodDesc");
  grid.Model().setData(Cell(7, "Nut2"), "500");
  ASSERT_TRUE(grid.SortBy("Nut2", true));
  EXPECT_EQ(Stored("Fat", 7), "500");
  EXPECT_EQ(grid.Model().RowOfKey(7), 0);
  EXPECT_EQ(grid.CurrentKey(), 7);
  EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{7});
  grid.Model().setData(Cell(40, "Nut1"), "1");
  ASSERT_TRUE(grid.SortBy("FoodDesc", true));
  EXPECT_EQ(Stored("Calories", 40), "1");
  EXPECT_EQ(grid.Model().KeyOfRow(0), 40);
  EXPECT_EQ(grid.CurrentKey(), 7);
}

TEST_F(GridTest, ARefusedEditLeavesFileAndRowUntilItIsCorrectedOrRestored) {
  GoTo(5, "Nut1");
  Type("9999");
  Press(Qt::Key_Down);
  EXPECT_EQ(grid.CurrentKey(), 5) << "the row cannot be left";
  EXPECT_EQ(Text(5, "Nut1"), "9999") << "what was typed is not lost";
  EXPECT_FALSE(Cell(5, "Nut1").data(Qt::ToolTipRole).toString().isEmpty());
  EXPECT_FALSE(grid.SortBy("Nut1", false));
  EXPECT_FALSE(grid.GoToKey(9));
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(Cell(9, "Nut1")).center());
  EXPECT_EQ(grid.CurrentKey(), 5);
  EXPECT_EQ(Stored("Calories", 5), "995");
  grid.Model().setData(Cell(5, "Nut1"), "12.3.4");
  EXPECT_EQ(Text(5, "Nut1"), "12.3.4");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Text(5, "Nut1"), "995");
  EXPECT_TRUE(grid.CommitRow());
  EXPECT_EQ(Stored("Calories", 5), "995");
}

TEST_F(GridTest, EscRestoresTheFieldThenTheRow) {
  GoTo(2, "Nut1");
  Type("11");
  Press(Qt::Key_Tab);
  Type("22");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Backtab);
  Press(Qt::Key_F2);
  Type("9");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Text(2, "Nut2"), "22.00") << "in the editor Esc drops what was typed in it";
  Press(Qt::Key_Escape);
  EXPECT_EQ(Text(2, "Nut2"), "0.25");
  EXPECT_EQ(Text(2, "Nut1"), "11");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Text(2, "Nut1"), "998");
  EXPECT_FALSE(grid.Model().IsChanging());
}

TEST_F(GridTest, BeforeUpdateMayChangeFurtherFieldsOrRefuse) {
  QString refusal;
  std::vector<qint64> saved;
  grid.Hooks().beforeUpdate = [&](GridRowEdit &row) {
    if (row.HasChanges()) row.Set("IsModified", true);
    return refusal;
  };
  grid.Hooks().afterUpdate = [&](qint64 key) {
    saved.push_back(key);
    grid.Refresh();  // as a window does when the change is announced
  };
  refusal = "Not now.";
  grid.Model().setData(Cell(6, "Nut1"), "5");
  EXPECT_FALSE(grid.CommitRow());
  EXPECT_EQ(Stored("Calories", 6), "994");
  EXPECT_EQ(Cell(6, "Nut1").data(Qt::ToolTipRole).toString(), "Not now.");
  refusal.clear();
  GoTo(12, "FoodDesc");
  EXPECT_EQ(grid.CurrentKey(), 12);
  EXPECT_EQ(saved, std::vector<qint64>{6});
  EXPECT_EQ(Stored("IsModified", 6), "-1");
  EXPECT_EQ(Stored("Calories", 6), "5");
}

TEST_F(GridTest, AFailedWriteKeepsWhatWasTypedAndARetryWorks) {
  int failures = 0;
  grid.Hooks().guard = [&](GridAction, const std::function<void()> &work) {
    try {
      work();
      return true;
    } catch (const Error &) {
      ++failures;
      return false;
    }
  };
  bool failing = true;
  grid.Hooks().beforeUpdate = [&](GridRowEdit &) -> QString {
    if (failing) throw Error(error_number::readOnly, "The file is read-only.");
    return {};
  };
  GoTo(6, "Nut1");
  Type("55");
  Press(Qt::Key_Down);
  EXPECT_EQ(failures, 1);
  EXPECT_EQ(grid.CurrentKey(), 6);
  EXPECT_EQ(Text(6, "Nut1"), "55");
  failing = false;
  Press(Qt::Key_Down);
  EXPECT_EQ(grid.CurrentKey(), 7);
  EXPECT_EQ(Stored("Calories", 6), "55");
}

TEST_F(GridTest, ReadOnlyRowsAreSkippedByTabAndSearchedByLetters) {
  grid.Hooks().isReadOnly = [](const auto &field) { return field("FoodID").toInt() % 10 == 0; };
  GoTo(9, "IsModified");
  Press(Qt::Key_Tab);
  EXPECT_EQ(grid.CurrentKey(), 11);
  EXPECT_EQ(grid.CurrentColumn(), "FoodDesc");
  EXPECT_FALSE(grid.Model().setData(Cell(10, "Nut1"), "1"));
  GoTo(10, "FoodDesc");
  Type("food 0003");
  EXPECT_EQ(grid.CurrentKey(), 30);
}

TEST_F(GridTest, TheNewRowIsInsertedUnderTheKeyOfTheHook) {
  grid.Model().SetAllowNew(true);
  grid.Hooks().beforeInsert = [](GridRowEdit &row) {
    row.Set("FoodID", 500);
    row.Set("GroupID", 2);
  };
  const int blank = grid.Model().RecordCount();
  grid.selectionModel()->setCurrentIndex(grid.Model().index(blank, 1), QItemSelectionModel::ClearAndSelect);
  Press(Qt::Key_F2);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(grid.Model().IsChanging()) << "an opened and closed editor makes no record";
  Type("Rye bread");
  Press(Qt::Key_Down);
  ASSERT_TRUE(grid.CommitRow());
  EXPECT_EQ(Count(), 41);
  EXPECT_EQ(Stored("FoodDesc", 500), "Rye bread");
  EXPECT_EQ(grid.Model().RowOfKey(500), blank);
  EXPECT_EQ(Text(500, "GroupID"), "Meats");
  EXPECT_EQ(grid.Model().rowCount(), 42);
}

TEST_F(GridTest, DeletingAsksOnceAndKeepsThePlace) {
  std::vector<std::vector<qint64>> asked;
  bool agree = false;
  grid.Hooks().beforeDelete = [&](const std::vector<qint64> &keys) {
    asked.push_back(keys);
    return agree;
  };
  grid.MarkRows({4, 5, 9});
  Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 40);
  agree = true;
  const qint64 commits = file->Counts().commits;
  Press(Qt::Key_Delete);
  EXPECT_EQ(asked, (std::vector<std::vector<qint64>>{{4, 5, 9}, {4, 5, 9}}));
  EXPECT_EQ(file->Counts().commits, commits + 1);
  EXPECT_EQ(Count(), 37);
  EXPECT_EQ(grid.CurrentKey(), 6) << "the row behind the first deleted one";
  GoTo(40, "FoodDesc");
  Press(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_TRUE(grid.RowsMarked());
  Press(Qt::Key_Delete);
  EXPECT_EQ(grid.CurrentKey(), 39) << "at the end of the list, the last row";
}

TEST_F(GridTest, RowsCopyForTheProgramAndForASpreadsheet) {
  file->Execute("UPDATE foods SET FoodDesc = ? WHERE FoodID = 2;", {"Tab\tand\r\nline"});
  grid.Refresh();
  grid.ShowColumn("Bought", false);
  grid.MarkRows({2, 3});
  grid.CopyRowsExternal();
  EXPECT_EQ(QApplication::clipboard()->text(),
            "Food 00003\t997\t0.38\tMeats\tNo\r\nTab and line\t998\t0.25\tFruits\tNo");
  GridClipboard rows;
  EXPECT_TRUE(grid.CopyRows(rows));
  EXPECT_EQ(rows.kind, "datFoods");
  ASSERT_EQ(rows.rows.size(), 2);
  EXPECT_EQ(rows.rows[0].value("Fat").toDouble(), 0.375);

  grid.Hooks().pasteRows = [&](const GridClipboard &copied) {
    std::vector<qint64> keys;
    for (const QVariantMap &row : copied.rows) {
      keys.push_back(900 + static_cast<qint64>(keys.size()));
      file->Execute("INSERT INTO foods ( FoodID, FoodDesc ) VALUES ( ?, ? );", {keys.back(), row.value("FoodDesc")});
    }
    return keys;
  };
  EXPECT_TRUE(grid.PasteRows(rows));
  EXPECT_EQ(grid.CurrentKey(), 901);
  EXPECT_EQ(Count(), 42);
  rows.kind = "datMeals";
  EXPECT_FALSE(grid.PasteRows(rows)) << "rows of another kind";
}

TEST_F(GridTest, AColumnCanBeBoundToAnotherField) {
  grid.RebindColumn("Nut2", "Calories", "Cal", "0.0");
  EXPECT_EQ(Text(3, "Nut2"), "997.0");
  EXPECT_EQ(Text(3, "Nut1"), "997");
  grid.RebindColumn("Nut2", {}, {});
  EXPECT_EQ(Text(3, "Nut2"), "");
  EXPECT_FALSE(grid.SortBy("Nut2", false)) << "nothing to sort by";
  EXPECT_EQ(grid.Model().headerData(3, Qt::Horizontal, Qt::UserRole).toString(), "Nut2");
}

TEST_F(GridTest, WidthsOfThePersonComeBack) {
  QTemporaryDir folder;
  const auto store = OpenSettingsFile(folder.filePath("settings.ini"));
  const QString key = settingsRoot + "\\grdFoods";
  grid.KeepWidths(*store, key);
  grid.setColumnWidth(1, 333);
  grid.hide();
  BoundGrid other("grdFoods", "Foods", QLocale::c());
  other.SetColumns(Columns());
  const int ordinary = other.columnWidth(2);
  other.KeepWidths(*store, key);
  EXPECT_EQ(other.columnWidth(1), 333);
  EXPECT_EQ(other.columnWidth(2), ordinary);
}

TEST_F(GridTest, AHiddenColumnGivesItsRoomAway) {
  QTemporaryDir folder;
  const auto store = OpenSettingsFile(folder.filePath("settings.ini"));
  const QString key = settingsRoot + "\\grdFoods";
  grid.KeepWidths(*store, key);
  const int taker = grid.columnWidth(1);
  const int giver = grid.columnWidth(2);
  const QString name = grid.Model().Columns()[2].name;
  grid.GiveRoom(name, grid.Model().Columns()[1].name);
  grid.ShowColumn(name, false);
  grid.ShowColumn(name, false);
  EXPECT_EQ(grid.columnWidth(1), taker + giver);
  grid.setColumnWidth(1, taker + giver + 50);  // what the person adds is kept, the room given is not
  grid.hide();
  grid.ShowColumn(name, true);
  EXPECT_EQ(grid.columnWidth(1), taker + 50);
  EXPECT_EQ(store->GetSettingLong(key, grid.Model().Columns()[1].name, 0), taker + 50);
}

class LongGridTest : public GridTest {
 protected:
  LongGridTest() : GridTest(9000) {}
};

TEST_F(LongGridTest, PaintingAndScrollingReadOnlyWhatIsSeen) {
  EXPECT_EQ(grid.Model().rowCount(), 9000);
  grid.Model().LoadAllKeys();
  grid.Open(*file, Source());
  const StoreCounts opened = file->Counts();
  grid.viewport()->grab();
  grid.grab();
  EXPECT_EQ(file->Counts().statements, opened.statements) << "no statement runs while painting";
  grid.Model().LoadAllKeys();
  const StoreCounts before = file->Counts();
  grid.scrollTo(grid.Model().index(6000, 1), QAbstractItemView::PositionAtTop);
  EXPECT_LE(file->Counts().rowsRead - before.rowsRead, 256);
  EXPECT_LE(file->Counts().statements - before.statements, 8);
  const StoreCounts scrolled = file->Counts();
  grid.grab();
  EXPECT_EQ(file->Counts().statements, scrolled.statements);
  EXPECT_EQ(grid.Model().index(6000, 1).data().toString(), "Food 06001");
}

TEST_F(LongGridTest, OpeningReadsOnePageWhateverTheLength) {
  GridModel model{QLocale::c()};
  model.SetColumns(Columns());
  const qint64 before = file->Counts().rowsRead;
  model.Open(*file, Source());
  model.Need(0, 30);
  EXPECT_LE(file->Counts().rowsRead - before, GridKeys::firstPage + 32);
  EXPECT_EQ(model.rowCount(), 9000);
  EXPECT_FALSE(model.AllKeysLoaded());
  EXPECT_EQ(model.index(8999, 1).data().toString(), "Food 09000");
  EXPECT_TRUE(model.AllKeysLoaded());
}

TEST_F(LongGridTest, DeletingAllMarkedRowsIsAllOrNothing) {
  grid.selectAll();
  ASSERT_EQ(grid.MarkedKeys().size(), 9000u);
  file->Execute("CREATE TABLE eaten ([FoodID] INTEGER REFERENCES foods ([FoodID]));");
  file->Execute("INSERT INTO eaten ( FoodID ) VALUES ( 8990 );");
  EXPECT_FALSE(grid.DeleteSelected()) << "one row cannot go";
  EXPECT_EQ(Count(), 9000);
  EXPECT_EQ(grid.MarkedKeys().size(), 9000u);
  file->Execute("DELETE FROM eaten;");
  grid.selectAll();
  EXPECT_TRUE(grid.DeleteSelected());
  EXPECT_EQ(Count(), 0);
  EXPECT_FALSE(grid.CurrentKey());
}

TEST_F(LongGridTest, MarksAndCurrentRowStayByKeyWhenSorted) {
  std::vector<qint64> marked;
  for (qint64 key = 3; key <= 9000; key += 3) marked.push_back(key);
  GoTo(4500, "Nut1");
  grid.MarkRows(marked);
  ASSERT_TRUE(grid.SortBy("Nut1", false));
  std::vector<qint64> after = grid.MarkedKeys();
  std::sort(after.begin(), after.end());
  EXPECT_EQ(after, marked);
  EXPECT_EQ(grid.CurrentKey(), 4500);
}

}  // namespace
}  // namespace trimlog
