#pragma once

#include <QModelIndex>
#include <optional>

class QContextMenuEvent;
class QMouseEvent;

namespace trimlog {

class BoundGrid;

/// What the mouse points at in a grid. Leaving a row saves it, and that may bring other rows under the mouse: the row
/// that the person pointed at is told by its key before anything else happens, and what follows the press acts on it.
class GridMouse {
 public:
  explicit GridMouse(BoundGrid &grid) : grid_(grid) {}

  bool Press(const QMouseEvent &event);  ///< true when it was acted on here; the view must not see it
  bool PressIsSettled() const { return settled_; }
  bool DoubleClick(const QMouseEvent &event);         ///< true as for Press
  bool GoToMenuCell(const QContextMenuEvent &event);  ///< false when no menu may open
  QModelIndex CellOfDoubleClick(const QMouseEvent &event) const;
  void ChooseRow(int row);  ///< a click on a row's head

 private:
  QModelIndex PressedCell(const QPoint &place) const;

  BoundGrid &grid_;
  std::optional<qint64> key_;  ///< of the row that the mouse last went down on
  bool settled_ = false;       ///< that press was acted on here: what follows it must not go by the old place
};

}  // namespace trimlog
