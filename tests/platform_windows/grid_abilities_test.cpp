// What a day's entries ask of a grid: foods looked up, texts mended, notes of several lines, dates picked, totals
// below.
#include <QAccessible>

#include "grid_fixture.h"
#include "platform/grid/grid_lookup.h"
#include "platform/windows/grid/frozen_column.h"
#include "platform/windows/grid/lookup_field.h"
#include "platform/windows/grid/totals_strip.h"

namespace trimlog {
namespace {

/// Six meals of the foods of GridTest: meal n eats food n, two servings, on the 2nd of February.
class MealsGridTest : public GridTest {
 protected:
  explicit MealsGridTest(int foods = 40) : GridTest(foods) {
    file->Execute(
        QStringLiteral("CREATE TABLE meals ([RecordID] INTEGER PRIMARY KEY, %1, %2, %3, %4, %5);")
            .arg(ColumnDeclaration("MealID", ColumnType::Long), ColumnDeclaration("Amount", ColumnType::Text, 20),
                 ColumnDeclaration("Calories", ColumnType::Double), ColumnDeclaration("ThisDate", ColumnType::Date),
                 ColumnDeclaration("Notes", ColumnType::Text, 0)));
    for (int n = 1; n <= 6; ++n) {
      file->Execute(
          "INSERT INTO meals ( RecordID, MealID, Amount, Calories, ThisDate, Notes ) "
          "VALUES ( ?, ?, '2', 100, ?, ? );",
          {n, n, QDate(2026, 2, 2), "one\ntwo\nthree"});
    }
    const GridLookup foodsLookup{.source = {.table = "foods", .key = "FoodID", .order = {{"FoodDesc"}}},
                                 .text = "FoodDesc",
                                 .columns = {{.name = "FoodDesc", .field = "FoodDesc", .width = 30},
                                             {.name = "Calories", .caption = "Cal", .field = "Calories"}}};
    const auto notNegative = [](const Value &value) {
      return value.toDouble() < 0 ? "No servings are negative." : QString();
    };
    grid.SetColumns(
        {{.name = "MealID",
          .caption = "Food Description",
          .field = "MealID",
          .type = GridType::Lookup,
          .width = 30,
          .editable = true,
          .lookup = std::make_shared<const GridLookup>(foodsLookup),
          .textField = "foods.FoodDesc"},
         {.name = "Amount",
          .caption = "# Srv",
          .field = "Amount",
          .type = GridType::NumberText,
          .editable = true,
          .savesAtOnce = true,
          .mend = MendWith("1"),
          .validate = notNegative},
         {.name = "Nut1", .caption = "Cal", .field = "Calories", .type = GridType::Number, .editable = true},
         {.name = "ThisDate",
          .caption = "Date",
          .field = "ThisDate",
          .type = GridType::Date,
          .editable = true,
          .mend = MendWithFormer()},
         {.name = "Notes",
          .caption = "Notes",
          .field = "Notes",
          .type = GridType::Memo,
          .width = 20,
          .editable = true}});
    grid.Open(*file, {.table = "meals",
                      .key = "RecordID",
                      .from = "meals INNER JOIN foods ON meals.MealID = foods.FoodID",
                      .order = {{"RecordID"}}});
    QApplication::processEvents();
  }
  QString Meal(const QString &field, qint64 key) {
    return file->OpenRecordset("SELECT * FROM meals WHERE RecordID = ?;", {key}).Text(field);
  }
  LookupField *OpenLookup() { return qobject_cast<LookupField *>(grid.OpenEditor()); }
  BoundGrid *List() { return OpenLookup() ? OpenLookup()->findChild<BoundGrid *>() : nullptr; }
};

TEST_F(MealsGridTest, ATextThatCannotBeUsedIsMendedAndTheRowSavedWithTheCell) {
  for (const auto &[typed, kept] : {std::pair{"", "1"}, {"abc", "1"}, {"-2", "1"}, {"2.5", "2.5"}}) {
    GoTo(3, "Amount");
    Press(Qt::Key_F2);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Backspace);
    Type(typed);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Meal("Amount", 3).toStdString(), kept) << typed;
    EXPECT_EQ(grid.CurrentKey(), 3);
    EXPECT_FALSE(grid.Model().IsChanging());
  }
  for (const char *typed : {"", "no date"}) {
    grid.Model().setData(Cell(3, "ThisDate"), typed);
    EXPECT_EQ(Text(3, "ThisDate"), "2/2/2026");
    EXPECT_FALSE(grid.Model().IsChanging()) << "what returns to what stood is no change";
  }
}

TEST_F(MealsGridTest, ACellChangesOthersOfItsRowBeforeItIsSaved) {
  grid.Hooks().afterCell = [](GridRowEdit &row, const QString &column) {
    if (column == "Amount") row.Set("Calories", 75);
  };
  const qint64 commits = file->Counts().commits;
  GoTo(1, "Amount");
  Type("1.5");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Meal("Amount", 1), "1.5");
  EXPECT_EQ(Meal("Calories", 1), "75");
  EXPECT_EQ(file->Counts().commits, commits + 1);
}

TEST_F(MealsGridTest, ALookupShowsTheTextAndStoresTheKey) {
  EXPECT_EQ(Text(4, "MealID"), "Food 00004");
  GoTo(4, "MealID");
  Type("food 0003");
  ASSERT_TRUE(List());
  EXPECT_TRUE(List()->isVisible());
  EXPECT_EQ(List()->CurrentKey(), 30) << "the first that begins so";
  Press(Qt::Key_Down);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Text(4, "MealID"), "Food 00031");
  EXPECT_EQ(Meal("MealID", 4), "4") << "not saved yet";
  Press(Qt::Key_Down);
  EXPECT_EQ(Meal("MealID", 4), "31");
  EXPECT_EQ(Text(4, "MealID"), "Food 00031");

  GoTo(5, "MealID");
  Press(Qt::Key_F4);
  ASSERT_TRUE(List() && List()->isVisible());
  EXPECT_EQ(List()->CurrentKey(), 5) << "opens at what stands";
  const QModelIndex third = List()->Model().index(2, 0);
  List()->scrollTo(third);
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, List()->visualRect(third).center());
  QApplication::processEvents();
  EXPECT_EQ(Text(5, "MealID"), "Food 00003");
  EXPECT_FALSE(OpenLookup());
  Press(Qt::Key_Escape);
  EXPECT_EQ(Text(5, "MealID"), "Food 00005");

  Type("nothing like it");
  Press(Qt::Key_Tab);
  EXPECT_EQ(grid.Model().RefusalOfRow(), "Please choose one of the entries of the list.");
  EXPECT_EQ(Text(5, "MealID"), "nothing like it");
  EXPECT_FALSE(grid.CommitRow());
  grid.UndoRow();
  ASSERT_TRUE(grid.SortBy("MealID", true));
  EXPECT_EQ(grid.Model().KeyOfRow(0), 4) << "sorted by the text";
}

class LongLookupTest : public MealsGridTest {
 protected:
  LongLookupTest() : MealsGridTest(9000) {}
};

TEST_F(LongLookupTest, ALongListIsReadOnlyWhereItIsSeen) {
  GoTo(1, "MealID");
  const qint64 before = file->Counts().rowsRead;
  Type("food 08");
  ASSERT_TRUE(List());
  EXPECT_EQ(List()->CurrentKey(), 8000);
  EXPECT_LT(file->Counts().rowsRead - before, 9000 + 9 * 400) << "keys once, and a page or two for each letter";
  Press(Qt::Key_Return);
  EXPECT_EQ(Text(1, "MealID"), "Food 08000");
}

TEST_F(MealsGridTest, AMemoHasSeveralLines) {
  const int oneLine = grid.rowHeight(0);
  grid.SetRowLines(3);
  EXPECT_EQ(grid.rowHeight(0), oneLine + 2 * grid.fontMetrics().lineSpacing());
  GoTo(2, "Notes");
  Press(Qt::Key_F2);
  ASSERT_TRUE(qobject_cast<QPlainTextEdit *>(grid.OpenEditor()));
  Type("first");
  Press(Qt::Key_Return);
  Type("second");
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(qobject_cast<QPlainTextEdit *>(grid.OpenEditor()));
  grid.CommitRow();
  EXPECT_EQ(Meal("Notes", 2), "first\nsecond");
}

TEST_F(MealsGridTest, ADateIsPickedByKeyAndByDoubleClick) {
  std::vector<QDate> shown;
  std::optional<QDate> answer = QDate(2026, 3, 5);
  grid.SetDatePicker([&](QWidget &, const QDate &date) {
    shown.push_back(date);
    return answer;
  });
  GoTo(2, "ThisDate");
  Press(Qt::Key_F4);
  EXPECT_EQ(Text(2, "ThisDate"), "3/5/2026");
  answer.reset();
  Press(Qt::Key_F2);
  Press(Qt::Key_F4);
  EXPECT_EQ(Text(2, "ThisDate"), "3/5/2026") << "nothing chosen, nothing changed";
  answer = QDate(2026, 4, 1);
  Click(PlaceOf(Cell(4, "ThisDate")));
  QTest::mouseDClick(grid.windowHandle(), Qt::LeftButton, {}, PlaceOf(Cell(4, "ThisDate")));
  EXPECT_EQ(Text(4, "ThisDate"), "4/1/2026");
  EXPECT_EQ(shown, (std::vector<QDate>{{2026, 2, 2}, {2026, 3, 5}, {2026, 2, 2}}));
}

TEST_F(MealsGridTest, TotalsStandUnderTheirColumnsAndScrollWithThem) {
  TotalsStrip strip("grdMealTotals", "Totals", grid);
  strip.SetTotals({{"Total1", {"Amount", "Nut1"}}, {"Total2", {"ThisDate"}}});
  strip.SetText("Total1", "600");
  EXPECT_EQ(strip.Text("Total1"), "600");
  EXPECT_EQ(strip.model()->index(0, 1).data(Qt::AccessibleTextRole).toString(), "Cal: 600");
  EXPECT_EQ(strip.model()->headerData(2, Qt::Horizontal, Qt::UserRole).toString(), "Total2");
  strip.resize(grid.width(), 30);
  strip.show();
  const auto aligned = [&] {
    const int heads = grid.verticalHeader()->width();
    EXPECT_EQ(strip.columnViewportPosition(1), grid.columnViewportPosition(1) + heads);
    EXPECT_EQ(strip.columnWidth(1), grid.columnWidth(1) + grid.columnWidth(2));
    EXPECT_EQ(strip.columnViewportPosition(2), grid.columnViewportPosition(3) + heads);
  };
  aligned();
  grid.setColumnWidth(0, 400);
  grid.setColumnWidth(2, 150);
  aligned();
  grid.setColumnWidth(4, 600);
  QApplication::processEvents();
  grid.horizontalScrollBar()->setValue(90);
  EXPECT_EQ(strip.horizontalScrollBar()->value(), 90);
  aligned();
  grid.ShowColumn("ThisDate", false);
  EXPECT_TRUE(strip.isColumnHidden(2));
}

TEST_F(GridTest, TheTextColumnStaysWhenTheOthersScroll) {
  for (int column = 2; column < 7; ++column) grid.setColumnWidth(column, 400);
  QApplication::processEvents();
  GoTo(3, "Nut1");
  EXPECT_FALSE(grid.findChild<FrozenColumn *>()) << "nothing is made before it is needed";
  grid.horizontalScrollBar()->setValue(900);
  QApplication::processEvents();
  auto *frozen = grid.findChild<FrozenColumn *>();
  ASSERT_TRUE(frozen && frozen->isVisible());
  EXPECT_EQ(frozen->columnWidth(1), grid.columnWidth(1));
  const QModelIndex fifth = Cell(5, "FoodDesc");
  EXPECT_EQ(frozen->visualRect(fifth).top(), grid.visualRect(fifth).top());
  QTest::mouseClick(frozen->viewport(), Qt::LeftButton, {}, frozen->visualRect(fifth).center());
  EXPECT_EQ(grid.CurrentKey(), 5);
  EXPECT_EQ(grid.CurrentColumn(), "FoodDesc");
  EXPECT_EQ(grid.horizontalScrollBar()->value(), 900) << "looking at it moves nothing";
  Type("Typed");
  EXPECT_TRUE(grid.IsTyping());
  EXPECT_EQ(grid.horizontalScrollBar()->value(), 0) << "typing needs the column itself";
  Press(Qt::Key_Down);
  EXPECT_EQ(Stored("FoodDesc", 5), "Typed");
  grid.horizontalScrollBar()->setValue(900);
  GoTo(5, "Nut1");
  EXPECT_GE(grid.columnViewportPosition(2), frozen->CoveredWidth()) << "no current cell below it";
}

TEST_F(GridTest, WhyARowWasRefusedStandsBelowItUntilItIsRight) {
  auto *line = grid.findChild<QLabel *>("lblRefused");
  ASSERT_TRUE(line);
  GoTo(5, "Nut1");
  Type("9999");
  Press(Qt::Key_Tab);
  const QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(line);
  EXPECT_EQ(heard->role(), QAccessible::Notification);
  EXPECT_EQ(heard->text(QAccessible::Name), "No food has so many calories.") << "said as soon as it is typed";
  EXPECT_FALSE(line->isVisible()) << "the row has not been left";
  Press(Qt::Key_Down);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->text(), "No food has so many calories.");
  EXPECT_GT(line->mapToGlobal(QPoint()).y(),
            grid.viewport()->mapToGlobal(grid.visualRect(Cell(5, "Nut1")).center()).y());
  Press(Qt::Key_F2);
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("12");
  Press(Qt::Key_Tab);
  EXPECT_FALSE(line->isVisible());
  grid.Hooks().beforeUpdate = [](GridRowEdit &) { return "Not now."; };
  Press(Qt::Key_Down);
  EXPECT_EQ(line->text(), "Not now.");
  EXPECT_TRUE(line->isVisible());
  grid.UndoRow();
  EXPECT_FALSE(line->isVisible());
}

TEST_F(GridTest, OneColumnTakesWhatTheOthersLeave) {
  QTemporaryDir folder;
  const auto store = OpenSettingsFile(folder.filePath("settings.ini"));
  const QString key = settingsRoot + "\\grdFoods";
  grid.KeepWidths(*store, key);
  const int own = grid.columnWidth(1);
  grid.resize(1500, 400);
  grid.SetSpareColumn("FoodDesc");
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width());
  grid.setColumnWidth(3, 200);
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width());
  grid.resize(400, 400);
  EXPECT_EQ(grid.columnWidth(1), own) << "never less than its own";
  grid.hide();
  EXPECT_EQ(store->GetSettingLong(key, "FoodDesc", 0), 0) << "what was given is not kept";
  EXPECT_EQ(store->GetSettingLong(key, "Nut2", 0), 200);
  EXPECT_TRUE(grid.isColumnHidden(0)) << "the row heads are empty enough";
}

TEST_F(GridTest, TicksAndHeadsSpeak) {
  EXPECT_EQ(Cell(1, "IsModified").data(Qt::AccessibleTextRole), "Not checked");
  grid.Model().setData(Cell(1, "IsModified"), Qt::Checked, Qt::CheckStateRole);
  EXPECT_EQ(Cell(1, "IsModified").data(Qt::AccessibleTextRole), "Checked");
  EXPECT_EQ(grid.Model().headerData(0, Qt::Vertical, Qt::AccessibleTextRole), "Changed, not saved yet");
  EXPECT_EQ(grid.Model().headerData(2, Qt::Horizontal, Qt::AccessibleTextRole), "Calories (kcal)");
  grid.UndoRow();
  grid.SetPlaceholderText("Type what you ate.");
  EXPECT_EQ(grid.accessibleDescription(), "") << "there are rows";
  GridSource none = Source();
  none.where = "FoodID = -99";
  ASSERT_TRUE(grid.SetSource(none));
  EXPECT_EQ(grid.accessibleDescription(), "Type what you ate.");
  const QImage withText = grid.viewport()->grab().toImage();
  grid.SetPlaceholderText({});
  EXPECT_NE(withText, grid.viewport()->grab().toImage()) << "an empty list says what to do";
}

}  // namespace
}  // namespace trimlog
