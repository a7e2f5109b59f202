#include "platform/windows/grid/grid_selection.h"

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

GridSelection::GridSelection(BoundGrid *grid) : QItemSelectionModel(grid->model(), grid), grid_(grid) {}

void GridSelection::setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) {
  const QModelIndex target = grid_->LeaveRowFor(index);
  if (index.isValid() && !target.isValid()) return;
  QItemSelectionModel::setCurrentIndex(target, command);
}

}  // namespace trimlog
