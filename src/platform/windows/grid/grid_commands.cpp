#include "platform/windows/grid/grid_commands.h"

#include <QApplication>
#include <QClipboard>
#include <algorithm>

#include "platform/grid/grid_export.h"
#include "platform/grid/grid_guard.h"
#include "platform/grid/pasted_text.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/cell_editors.h"

namespace trimlog {

void GridCommands::Copy() {
  if (QWidget *editor = grid_.OpenEditor()) return RunInEditor(*editor, "copy");
  if (grid_.currentIndex().isValid()) QApplication::clipboard()->setText(grid_.currentIndex().data().toString());
}

void GridCommands::Cut() {
  if (QWidget *editor = grid_.OpenEditor()) return RunInEditor(*editor, "cut");
  Copy();
  ClearCell();
}

void GridCommands::Paste() {
  const QModelIndex cell = grid_.currentIndex();
  if (!cell.flags().testFlag(Qt::ItemIsEditable)) return;
  const QString clipboard = QApplication::clipboard()->text();
  const bool lines = grid_.Model().Columns()[cell.column()].type == GridType::Memo;
  const QString text = lines ? clipboard : PastedCell(clipboard);
  if (QWidget *editor = grid_.OpenEditor()) {
    InsertInEditor(*editor, text);
  } else {
    grid_.Model().setData(cell, text);
  }
}

bool GridCommands::ClearCell() {
  const QModelIndex cell = grid_.currentIndex();
  if (!cell.flags().testFlag(Qt::ItemIsEditable)) return false;
  const GridType type = grid_.Model().Columns()[cell.column()].type;
  if (type != GridType::Choice && type != GridType::Lookup) grid_.Model().setData(cell, QString());
  return true;
}

void GridCommands::UndoField() {
  grid_.CloseOpenEditor(false);
  grid_.Model().UndoField(grid_.currentIndex());
}

void GridCommands::UndoRow() {
  grid_.CloseOpenEditor(false);
  grid_.Model().UndoRow();
}

bool GridCommands::DeleteSelected() {
  GridModel &model = grid_.Model();
  if (!grid_.canDelete || !model.IsOpen()) return false;
  grid_.CloseOpenEditor(true);
  const std::vector<qint64> keys = grid_.Selection().KeysMeant();
  if (keys.empty()) return false;
  const std::optional<qint64> changing = model.KeyOfRow(model.ChangingRow());
  const bool changingGoes = changing && std::find(keys.begin(), keys.end(), *changing) != keys.end();
  if (!changingGoes && !grid_.CommitRow()) return false;
  if (model.hooks.beforeDelete && !model.hooks.beforeDelete(keys)) return false;
  const bool deleted = RunGuarded(grid_.Model(), GridAction::Delete, [&] { DeleteKeepingPlace(keys); });
  if (deleted && model.hooks.afterDelete) model.hooks.afterDelete(keys);
  return deleted;
}

// The row that stood behind the deleted ones becomes current; at the end of the list the one before them.
void GridCommands::DeleteKeepingPlace(const std::vector<qint64> &keys) {
  GridModel &model = grid_.Model();
  const std::vector<int> gone = model.RowsOfKeys(keys);
  int next = gone.empty() ? 0 : gone.front();
  const int column = std::max(0, grid_.currentIndex().column());
  const std::optional<qint64> top = model.KeyOfRow(std::max(0, grid_.rowAt(0)));
  model.DeleteRows(keys);
  grid_.Reading().Prefetch();
  const int topRow = top ? model.RowOfKey(*top) : -1;
  if (topRow > 0) grid_.scrollTo(model.index(topRow, column), QAbstractItemView::PositionAtTop);
  next = std::min(next, model.RecordCount() - 1);
  if (next >= 0) grid_.Selection().GoTo(model.index(next, column));
  grid_.TellCurrentRow();
}

bool GridCommands::CopyRows(GridClipboard &clipboard) {
  if (!grid_.CommitRow()) return false;
  return RunGuarded(grid_.Model(), GridAction::Load, [&] {
    clipboard.rows = grid_.Model().WholeRows(grid_.Selection().KeysMeant());
    clipboard.kind = grid_.recordSource;
  });
}

void GridCommands::CopyRowsExternal() {
  const GridModel &model = grid_.Model();
  QApplication::clipboard()->setText(RowsAsText(model, model.RowsOfKeys(grid_.Selection().KeysMeant())));
}

// Rows that the shown list does not hold leave the person where they are.
bool GridCommands::PasteRows(const GridClipboard &clipboard) {
  const GridHooks &hooks = grid_.Hooks();
  const bool fits = hooks.pasteRows && !clipboard.rows.isEmpty() && clipboard.kind == grid_.recordSource;
  if (!fits || !grid_.CommitRow()) return false;
  return RunGuarded(grid_.Model(), GridAction::Paste, [&] {
    const std::vector<qint64> pasted = hooks.pasteRows(clipboard);
    grid_.Reading().KeepingPlace([this] { grid_.Model().Refresh(); });
    if (!pasted.empty() && grid_.GoToKey(pasted.back())) grid_.MarkRows(pasted);
    grid_.setFocus();
  });
}

}  // namespace trimlog
