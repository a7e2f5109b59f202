#include "core/windows/controls/grid_menu.h"

#include "platform/store/recordset.h"
#include "platform/windows/grid/bound_grid.h"
#include "support/test_session.h"
#include "support/windows/controls.h"

namespace trimlog {
namespace {

class GridMenuTest : public ::testing::Test {
 protected:
  GridMenuTest() {
    for (BoundGrid *shown : {&grid, &other}) {
      shown->SetColumns({{.name = "Description", .field = "Description", .editable = true}, {.name = "Dummy"}});
      shown->Open(session.Data(), {.table = "links", .key = "LinkID", .order = {{"LinkID"}}});
      menu.Attach(*shown);
    }
    grid.recordSource = "datLinks";
    other.recordSource = "datMealsList";
    for (BoundGrid *shown : {&grid, &other}) {
      shown->Hooks().pasteRows = [this](const GridClipboard &rows) {
        pasted += rows.rows.size();
        return std::vector<qint64>{};
      };
    }
  }
  /// Opens the menu on a cell of a grid.
  void Open(BoundGrid &shown, int row, int column) {
    shown.setCurrentIndex(shown.Model().index(row, column));
    Q_EMIT shown.MenuWanted({});
    menu.hide();
  }
  QAction *Action(const char *name) { return menu.findChild<QAction *>(name); }

  TestSession session;
  Navigator navigator;
  BoundGrid grid{"grdLinksEdit", "Links", session->locale};
  BoundGrid other{"grdMealsList", "Foods", session->locale};
  GridMenu menu{*session, navigator, &grid};
  qsizetype pasted = 0;
};

TEST_F(GridMenuTest, SortsTheColumnUnderTheMouseAndDisablesWhatCannotBeDone) {
  Open(grid, 0, 0);
  Action("mnuPM1SortDescending")->trigger();
  EXPECT_EQ(grid.Model().Source().order, (QList<GridOrder>{{"Description", true}}));
  EXPECT_FALSE(Action("mnuPM1UndoRow")->isEnabled());
  EXPECT_FALSE(Action("mnuPM1Targets")->isEnabled()) << "a door that leads nowhere";
  grid.Model().setData(grid.Model().index(0, 0), "Changed");
  Open(grid, 0, 0);
  EXPECT_TRUE(Action("mnuPM1UndoField")->isEnabled());
  Action("mnuPM1UndoField")->trigger();
  EXPECT_FALSE(grid.Model().IsChanging());
  Open(grid, 0, 1);
  EXPECT_FALSE(Action("mnuPM1SortAscending")->isEnabled()) << "a column without data";
}

TEST_F(GridMenuTest, RowsArePastedOnlyIntoAGridOfTheirKind) {
  const QString refusal =
      "The data that was last copied was not of this type.  Please select and copy the corresponding data that you "
      "would "
      "like to paste first.";
  Open(grid, 0, 0);
  session.boxes.Expect("Unable to Copy Data", refusal);
  Action("mnuPM1PasteRow")->trigger();  // nothing was copied yet
  Action("mnuPM1CopyRowNormal")->trigger();
  EXPECT_EQ(session->windows.rowClipboard.rows.size(), 1);
  Open(other, 0, 0);
  session.boxes.Expect("Unable to Copy Data", refusal);
  Action("mnuPM1PasteRow")->trigger();
  EXPECT_EQ(pasted, 0);
  EXPECT_EQ(session.boxes.Shown().back().icon, BoxIcon::Critical);
  Open(grid, 0, 0);
  Action("mnuPM1PasteRow")->trigger();
  EXPECT_EQ(pasted, 1);
}

}  // namespace
}  // namespace trimlog
