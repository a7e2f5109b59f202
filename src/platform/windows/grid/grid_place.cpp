#include "platform/windows/grid/grid_place.h"

#include <QScrollBar>
#include <algorithm>

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

GridPlace::GridPlace(BoundGrid &grid) : grid_(grid) {
  const QModelIndex current = grid.currentIndex();
  key_ = grid.CurrentKey();
  row_ = current.row();
  column_ = current.column();
  onNewRow_ = current.isValid() && !key_;
  chosenByHand_ = grid.Selection().chosenByHand;
  topKey_ = grid.Model().KeyOfRow(grid.rowAt(0));
  marked_ = grid.MarkedKeys();
}

void GridPlace::Restore() const {
  const GridModel &model = grid_.Model();
  GridSelection &selection = grid_.Selection();
  if (topKey_) {
    const int top = model.RowOfKey(*topKey_);
    if (top > 0) grid_.verticalScrollBar()->setValue(top);
  }
  selection.MarkKeys(marked_);
  int row = key_ ? model.RowOfKey(*key_) : -1;
  if (row < 0) row = onNewRow_ ? model.rowCount() - 1 : std::min(row_, model.RecordCount() - 1);
  if (row >= 0) {
    const bool markIt = selection.selection().isEmpty() && !marked_.empty();
    selection.setCurrentIndex(
        model.index(row, std::clamp(column_, 0, model.columnCount() - 1)),
        markIt ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate);
  }
  selection.chosenByHand = chosenByHand_;
}

}  // namespace trimlog
