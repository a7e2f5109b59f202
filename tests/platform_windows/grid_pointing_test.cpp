// What a person points at is what is acted on, whatever moves on the way to the click.

#include "grid_fixture.h"
#include "platform/grid/pasted_text.h"
#include "platform/windows/fields/wheel_guard.h"

namespace trimlog {
namespace {

class GridPointingTest : public GridTest {
 protected:
  GridPointingTest() {
    grid.Hooks().afterUpdate = [this](qint64) { grid.Refresh(); };  // as a window does when the change is announced
    QObject::connect(&grid, &BoundGrid::MenuWanted, [this] { menuOn = grid.CurrentKey(); });
    QObject::connect(&grid, &BoundGrid::RowActivated, [this](qint64 key) { activated = key; });
  }
  /// Overtypes the name of the first row, so that its place in the order is the last, and leaves it unsaved.
  void TypeOverFirstRow() {
    GoTo(1, "FoodDesc");
    Type("zzz moved");
  }
  std::optional<qint64> menuOn;
  std::optional<qint64> activated;
};

TEST_F(GridPointingTest, TheRowUnderTheMouseIsTheOneThatIsMeant) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    GoTo(1, "FoodDesc");
    Type("zzz moved");
    Click(PlaceOf(Cell(5, "Nut1")), button);
    EXPECT_EQ(grid.CurrentKey(), 5) << button;
    EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{5});
    EXPECT_EQ(Stored("FoodDesc", 1), "zzz moved");
    EXPECT_EQ(grid.Model().RowOfKey(1), 0) << "nothing moves under the pointer";
    EXPECT_EQ(menuOn.has_value(), button == Qt::RightButton);
    file->Execute("UPDATE foods SET FoodDesc = 'Food 00001' WHERE FoodID = 1;");
    grid.Refresh();
  }
  EXPECT_EQ(menuOn, 5);
  EXPECT_EQ(grid.CurrentColumn(), "Nut1");
}

TEST_F(GridPointingTest, APlainClickMeansItsRowAloneAndKeysMayFollowAtOnce) {
  GoTo(1, "FoodDesc");
  Press(Qt::Key_A, Qt::ControlModifier);
  ASSERT_EQ(grid.MarkedKeys().size(), 40U);
  Click(PlaceOf(Cell(5, "FoodDesc")));
  EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{5});
  Click(PlaceOf(Cell(5, "FoodDesc")));  // on the chosen row: a second click might follow
  Type(QStringLiteral("Quick"));
  Press(Qt::Key_Tab);
  EXPECT_EQ(Text(5, "FoodDesc").toStdString(), "Quick");
}

// Whoever refreshes from elsewhere may have moved the rows all the same.
TEST_F(GridPointingTest, RowsThatMoveWhileOneIsLeftDoNotChangeWhatIsMeant) {
  grid.Hooks().isReadOnly = [](const auto &field) { return field("FoodID").toInt() == 6; };
  grid.Hooks().afterUpdate = [this](qint64) { grid.Model().Refresh(); };
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    TypeOverFirstRow();
    Click(PlaceOf(Cell(5, "Nut1")), button);
    EXPECT_EQ(grid.Model().RowOfKey(1), 39);
    EXPECT_EQ(grid.CurrentKey(), 5);
    EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{5});
    file->Execute("UPDATE foods SET FoodDesc = 'Food 00001' WHERE FoodID = 1;");
    grid.Refresh();
  }
  EXPECT_EQ(menuOn, 5);
  TypeOverFirstRow();
  const QPoint place = PlaceOf(Cell(6, "FoodDesc"));
  QTest::mouseDClick(grid.windowHandle(), Qt::LeftButton, {}, place);
  QApplication::processEvents();
  EXPECT_EQ(grid.CurrentKey(), 6);
  EXPECT_EQ(activated, 6);
  GoTo(1, "Nut1");
  Type("1");
  const QRect section = grid.verticalHeader()->geometry();
  Click({section.center().x(), PlaceOf(Cell(38, "Nut1")).y()});
  EXPECT_EQ(grid.CurrentKey(), 38);
  EXPECT_EQ(grid.MarkedKeys(), std::vector<qint64>{38});
  EXPECT_EQ(Stored("Calories", 1), "1");
}

TEST_F(GridPointingTest, SortedByTheNutrientThatWasJustChanged) {
  ASSERT_TRUE(grid.SortBy("Nut1", false));
  const qint64 third = *grid.Model().KeyOfRow(2);
  const qint64 first = *grid.Model().KeyOfRow(0);
  GoTo(first, "Nut1");
  Type("5000");
  Click(PlaceOf(Cell(third, "FoodDesc")));
  EXPECT_EQ(grid.CurrentKey(), third);
  EXPECT_EQ(grid.Model().RowOfKey(first), 0);
  EXPECT_EQ(Stored("Calories", first), "5000");
  ASSERT_TRUE(grid.SortBy("Nut1", false));
  EXPECT_EQ(grid.Model().RowOfKey(first), 39) << "asked for, it finds its new place";
}

TEST_F(GridPointingTest, ARefusedRowOpensNoMenuForAnother) {
  GoTo(1, "Nut1");
  Type("9999");
  Click(PlaceOf(Cell(5, "Nut1")), Qt::RightButton);
  EXPECT_EQ(grid.CurrentKey(), 1);
  EXPECT_FALSE(menuOn);
  QTest::mouseDClick(grid.windowHandle(), Qt::LeftButton, {}, PlaceOf(Cell(6, "Nut1")));
  EXPECT_EQ(grid.CurrentKey(), 1);
  EXPECT_EQ(Cell(1, "Nut1").data(Qt::AccessibleDescriptionRole).toString(), "No food has so many calories.");
}

TEST_F(GridPointingTest, RowsChangedElsewhereAreReadAfresh) {
  grid.Model().setData(Cell(2, "Nut1"), "77");
  file->Execute("UPDATE foods SET FoodDesc = 'New name' WHERE FoodID IN (1, 2);");
  grid.RefreshRows({1, 2});
  EXPECT_EQ(Text(1, "FoodDesc"), "New name");
  EXPECT_EQ(Text(2, "Nut1"), "77") << "what is being typed stays";
  EXPECT_EQ(grid.Model().RowOfKey(1), 0);
  grid.UndoRow();
  GoTo(4, "Nut2");
  file->Execute("DELETE FROM foods WHERE FoodID = 1;");
  file->Execute("INSERT INTO foods ( FoodID, FoodDesc ) VALUES ( 99, 'Added' );");
  grid.RefreshRows({1, 99});
  EXPECT_EQ(grid.Model().RecordCount(), 40);
  EXPECT_EQ(grid.Model().RowOfKey(99), 0);
  EXPECT_EQ(grid.CurrentKey(), 4);
  EXPECT_EQ(grid.CurrentColumn(), "Nut2");
  GoTo(20, "Nut2");
  grid.verticalScrollBar()->setValue(12);
  file->Execute("INSERT INTO foods ( FoodID, FoodDesc ) VALUES ( 98, \"A second food\" );");
  const qint64 top = *grid.Model().KeyOfRow(grid.rowAt(0));
  grid.RefreshRows({98});
  EXPECT_EQ(grid.Model().KeyOfRow(grid.rowAt(0)), top) << "what is being looked at stays";
  GridSource byFat = Source();
  byFat.order = {{"Fat"}};
  ASSERT_TRUE(grid.SetSource(byFat));
  EXPECT_EQ(grid.verticalScrollBar()->value(), 0) << "another order begins at its first row";
}

TEST_F(GridPointingTest, CaptionsSortAndAnEmptyOneDoesNothing) {
  grid.resize(1200, 400);
  int sorted = 0;
  QObject::connect(&grid, &BoundGrid::Sorted, [&] { ++sorted; });
  QHeaderView *captions = grid.horizontalHeader();
  const auto press = [&](int column) {
    const QPoint inHeader(captions->sectionViewportPosition(column) + 6, captions->height() / 2);
    Click(captions->viewport()->mapTo(&grid, inHeader));
  };
  press(2);
  press(2);
  EXPECT_EQ(grid.Model().Source().order, (QList<GridOrder>{{"Calories", true}}));
  EXPECT_EQ(sorted, 2);
  press(7);
  EXPECT_EQ(captions->sortIndicatorSection(), 2);
  EXPECT_EQ(captions->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_EQ(sorted, 2);
  GoTo(3, "Nut1");
  Type("9999");
  press(3);
  EXPECT_EQ(captions->sortIndicatorSection(), 2) << "a refused row lets nothing be sorted";
  grid.UndoRow();
  GridSource byFat = Source();
  byFat.order = {{"Fat"}};
  ASSERT_TRUE(grid.SetSource(byFat));
  EXPECT_EQ(captions->sortIndicatorSection(), 3) << "sorted by what opened it";
  EXPECT_EQ(captions->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(GridPointingTest, KeysClearACellAndDeleteOnlyMarkedRows) {
  for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
    GoTo(3, "Nut2");
    Press(key);
    EXPECT_EQ(Text(3, "Nut2"), "");
    EXPECT_EQ(Count(), 40);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(3, "Nut2"), "0.38");
  }
  GoTo(3, "GroupID");
  Press(Qt::Key_Delete);
  EXPECT_EQ(Text(3, "GroupID"), "Meats") << "a list has no empty entry";
  Click({grid.verticalHeader()->geometry().center().x(), PlaceOf(Cell(3, "Nut1")).y()});
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Count(), 40);
  grid.UndoRow();
  Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 39);
  EXPECT_EQ(grid.Model().RowOfKey(3), -1);
  grid.MarkRows({5});
  GoTo(6, "Nut2");
  Press(Qt::Key_Delete);
  EXPECT_EQ(Count(), 39) << "a mark ends where one goes on";
}

TEST_F(GridPointingTest, ListsAndTheMenuOpenByKeys) {
  for (const auto &[key, modifiers] : {std::pair{Qt::Key_F4, Qt::NoModifier}, {Qt::Key_Down, Qt::AltModifier}}) {
    GoTo(3, "GroupID");
    Press(key, modifiers);
    const auto lists = grid.findChildren<QComboBox *>();
    ASSERT_FALSE(lists.isEmpty());
    QComboBox *const list = lists.last();
    EXPECT_TRUE(list->view()->isVisible());
    QTest::keyClick(list->view(), Qt::Key_Up);
    QTest::keyClick(list->view(), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Text(3, "GroupID"), "Fruits");
    Press(Qt::Key_Escape);
    Press(Qt::Key_Escape);
    grid.UndoRow();
  }
  GoTo(3, "FoodDesc");
  Press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(menuOn, 3);
  menuOn.reset();
  Press(Qt::Key_F2);
  Type("x");
  EXPECT_TRUE(grid.IsTyping());
  Press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(menuOn, 3);
  menuOn.reset();
  Click(PlaceOf(Cell(3, "FoodDesc")), Qt::RightButton);
  EXPECT_EQ(menuOn, 3) << "the editor has the grid's menu";
  EXPECT_TRUE(grid.IsTyping()) << "and what is typed in it stays";
}

TEST_F(GridPointingTest, APastedTextIsOneLineAndTheSameOnTheCellAndInItsEditor) {
  EXPECT_EQ(PastedCell("  two\r\nlines\n"), "two lines");
  EXPECT_EQ(PastedCell("first\tsecond\r\nbelow\tit"), "first");
  const QString tooLong(300, QLatin1Char('x'));
  for (const bool editor : {false, true}) {
    QApplication::clipboard()->setText("A\nname\n");
    GoTo(5, "FoodDesc");
    if (editor) Press(Qt::Key_F2);
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Text(5, "FoodDesc"), "A name");
    GoTo(5, "FoodDesc");
    QApplication::clipboard()->setText(tooLong);
    if (editor) Press(Qt::Key_F2);
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Text(5, "FoodDesc"), tooLong) << "nothing is cut off";
    EXPECT_EQ(Cell(5, "FoodDesc").data(GridModel::SentenceRole), "At most 60 characters can be kept here.");
    EXPECT_FALSE(grid.CommitRow());
    grid.UndoRow();
  }
}

TEST(WheelGuardTest, TheWheelChangesOnlyABoxWithTheFocus) {
  QScrollArea window;
  auto *panel = new QWidget;
  auto *layout = new QVBoxLayout(panel);
  auto *first = new QPushButton("First");
  auto *box = new QComboBox;
  box->addItems({"a", "b", "c"});
  WheelGuard guard;
  guard.Guard(box);
  layout->addWidget(first);
  layout->addWidget(box);
  layout->addSpacing(2000);
  window.setWidget(panel);
  window.show();
  QApplication::setActiveWindow(&window);
  QApplication::processEvents();
  ASSERT_GT(window.verticalScrollBar()->maximum(), 0);
  const auto turn = [&] {
    const QPointF place(5, 5);
    QWheelEvent wheel(place, box->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);  // as the window system sends it: what ignores it hands it on
    qApp->notify(box, &wheel);
  };
  first->setFocus();
  turn();
  EXPECT_EQ(box->currentIndex(), 0);
  EXPECT_GT(window.verticalScrollBar()->value(), 0) << "the page scrolls instead";
  box->setFocus();
  turn();
  EXPECT_EQ(box->currentIndex(), 1);
}

}  // namespace
}  // namespace trimlog
