#include "platform/windows/grid/grid_mouse.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <algorithm>

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

bool GridMouse::Press(const QMouseEvent &event) {
  const QModelIndex pointed = grid_.indexAt(event.position().toPoint());
  key_ = grid_.Model().KeyOfRow(pointed.row());
  settled_ = false;
  if (!pointed.isValid()) return false;
  const QModelIndex cell = grid_.LeaveRowFor(pointed);
  settled_ = cell.row() != grid_.indexAt(event.position().toPoint()).row();
  if (settled_ && cell.isValid()) grid_.Selection().GoTo(cell);
  return settled_;
}

// The cell of the pressed row in the column at a place; an invalid index when that row is not shown any more.
QModelIndex GridMouse::PressedCell(const QPoint &place) const {
  const int row = key_ ? grid_.Model().RowOfKey(*key_) : -1;
  return row < 0 ? QModelIndex() : grid_.Model().index(row, std::max(0, grid_.columnAt(place.x())));
}

QModelIndex GridMouse::CellOfDoubleClick(const QMouseEvent &event) const {
  const QPoint place = event.position().toPoint();
  const QModelIndex under = grid_.indexAt(place);
  return settled_ || grid_.Model().KeyOfRow(under.row()) != key_ ? PressedCell(place) : under;
}

bool GridMouse::DoubleClick(const QMouseEvent &event) {
  const QModelIndex cell = CellOfDoubleClick(event);
  if (cell == grid_.indexAt(event.position().toPoint()) && !settled_) return false;
  if (cell.isValid() && grid_.Selection().GoTo(cell) && cell.flags().testFlag(Qt::ItemIsEditable)) {
    grid_.EditCell(cell);
  }
  return true;
}

bool GridMouse::GoToMenuCell(const QContextMenuEvent &event) {
  // The pressed row is current already; the column under the mouse is the one that the menu sorts by.
  const QPoint place = grid_.viewport()->mapFromGlobal(event.globalPos());
  const QModelIndex cell = settled_ ? PressedCell(place) : grid_.indexAt(place);
  if (!cell.isValid() || cell == grid_.currentIndex()) return true;
  grid_.Selection().setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
  return grid_.currentIndex() == cell;  // a refused row stays current: no command may act on it by mistake
}

void GridMouse::ChooseRow(int row) {
  const QModelIndex cell = grid_.LeaveRowFor(grid_.Model().index(row, grid_.FirstColumn()));
  if (!cell.isValid()) return;
  grid_.selectRow(cell.row());
  grid_.Selection().chosenByHand = true;
  grid_.viewport()->update();
}

}  // namespace trimlog
