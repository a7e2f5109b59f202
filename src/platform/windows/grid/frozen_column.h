#pragma once

#include <QTableView>

namespace trimlog {

class BoundGrid;

/// A copy of a grid's first text column that stays at the left edge while the other columns scroll below it. It shows
/// the grid's own rows, marks and sort arrow, and hands the mouse on to the grid.
class FrozenColumn : public QTableView {
  Q_OBJECT
 public:
  FrozenColumn(BoundGrid &grid, int column);

  /// Shows itself where the column has scrolled out of sight, at the grid's own place and heights.
  void Follow();
  int CoveredWidth() const { return isVisible() ? width() : 0; }
  int Column() const { return column_; }

 protected:
  bool viewportEvent(QEvent *event) override;

 private:
  BoundGrid &grid_;
  int column_;
};

}  // namespace trimlog
