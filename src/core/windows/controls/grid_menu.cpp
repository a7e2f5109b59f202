#include "core/windows/controls/grid_menu.h"

#include "core/windows/controls/door_control.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

bool PasteGridRow(Session &session, BoundGrid &grid) {
  const GridClipboard &copied = session.windows.rowClipboard;
  if (copied.rows.isEmpty() || copied.kind != grid.recordSource) {
    session.boxes.Critical(QStringLiteral("Unable to Copy Data"),
                           QStringLiteral("The data that was last copied was not of this type.  Please select and copy "
                                          "the corresponding data that you would like to paste first."));
    return false;
  }
  return grid.PasteRows(copied);
}

GridMenu::GridMenu(Session &session, const Navigator &navigator, QWidget *parent)
    : QMenu(parent), session_(session), navigator_(navigator) {
  setObjectName(QStringLiteral("mnuPM1"));
  cut_ = Add(*this, "mnuPM1Cut", tr("Cut"), [](BoundGrid &grid) { grid.Cut(); });
  Add(*this, "mnuPM1Copy", tr("Copy"), [](BoundGrid &grid) { grid.Copy(); });
  paste_ = Add(*this, "mnuPM1Paste", tr("Paste"), [](BoundGrid &grid) { grid.Paste(); });
  addSeparator();
  copyRow_ = addMenu(tr("Copy Row(s)"));
  copyRow_->setObjectName(QStringLiteral("mnuPM1CopyRow"));
  copyRow_->menuAction()->setObjectName(QStringLiteral("mnuPM1CopyRow"));
  Add(*copyRow_, "mnuPM1CopyRowNormal", tr("Normal Copy"),
      [this](BoundGrid &grid) { grid.CopyRows(session_.windows.rowClipboard); });
  Add(*copyRow_, "mnuPM1CopyRowExternal", tr("For External Use"), [](BoundGrid &grid) { grid.CopyRowsExternal(); });
  pasteRow_ =
      Add(*this, "mnuPM1PasteRow", tr("Paste Row(s)"), [this](BoundGrid &grid) { PasteGridRow(session_, grid); });
  deleteRow_ = Add(*this, "mnuPM1DeleteRow", tr("Delete Row(s)"), [](BoundGrid &grid) { grid.DeleteSelected(); });
  addSeparator();
  undoField_ = Add(*this, "mnuPM1UndoField", tr("Undo Field"), [](BoundGrid &grid) { grid.UndoField(); });
  undoRow_ = Add(*this, "mnuPM1UndoRow", tr("Undo Row"), [](BoundGrid &grid) { grid.UndoRow(); });
  addSeparator();
  sortAscending_ =
      Add(*this, "mnuPM1SortAscending", tr("Sort Ascending"), [this](BoundGrid &grid) { grid.SortBy(column_, false); });
  sortDescending_ = Add(*this, "mnuPM1SortDescending", tr("Sort Descending"),
                        [this](BoundGrid &grid) { grid.SortBy(column_, true); });
  addSeparator();
  // These windows may give the grid other columns: what is being typed is saved first.
  targets_ = Add(*this, "mnuPM1Targets", tr("Nutritional Targets..."), [this](BoundGrid &grid) {
    if (grid.CommitRow()) navigator_.OpenTargets(grid.window());
  });
  nutrients_ = Add(*this, "mnuPM1Nutrients", tr("Nutrient Selections..."), [this](BoundGrid &grid) {
    if (grid.CommitRow()) navigator_.OpenNutrientSelection(grid.window());
  });
}

QAction *GridMenu::Add(QMenu &menu, const char *name, const QString &caption, Act act) {
  QAction *const action = menu.addAction(caption);
  action->setObjectName(QLatin1String(name));
  connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
    if (grid_) act(*grid_);
  });
  return action;
}

void GridMenu::Attach(BoundGrid &grid) {
  connect(&grid, &BoundGrid::MenuWanted, this, [this, &grid](const QPoint &place) { Open(grid, place); });
}

void GridMenu::Open(BoundGrid &grid, const QPoint &place) {
  grid_ = &grid;
  column_ = grid.CurrentColumn();
  UpdateActions(grid);
  popup(place);
}

void GridMenu::UpdateActions(BoundGrid &grid) {
  const QModelIndex cell = grid.currentIndex();
  const bool canChange = cell.flags().testFlag(Qt::ItemIsEditable);
  const bool onRow = grid.CurrentKey().has_value();
  const int column = grid.Model().ColumnByName(column_);
  const bool sortable = grid.canSort && column >= 0 && !grid.Model().Columns()[column].field.isEmpty();
  cut_->setEnabled(canChange);
  paste_->setEnabled(canChange);
  copyRow_->setEnabled(onRow);
  pasteRow_->setEnabled(static_cast<bool>(grid.Hooks().pasteRows));
  deleteRow_->setEnabled(onRow && grid.canDelete);
  undoField_->setEnabled(grid.Model().IsFieldChanged(cell) || grid.IsTyping());
  undoRow_->setEnabled(grid.Model().IsChanging() || grid.IsTyping());
  sortAscending_->setEnabled(sortable);
  sortDescending_->setEnabled(sortable);
  NeedsDoor(*targets_, navigator_.OpenTargets);
  NeedsDoor(*nutrients_, navigator_.OpenNutrientSelection);
}

}  // namespace trimlog
