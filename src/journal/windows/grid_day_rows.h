#pragma once

#include "journal/day_walk.h"

namespace trimlog {

class BoundGrid;

/// A journal grid as the rows of a day: what its cells hold, with all decimals and an edit not yet saved included, so
/// that a sum is the file's. The grid outlives it. The date stands in the field ThisDate.
class GridDayRows : public DayRows {
 public:
  explicit GridDayRows(const BoundGrid &grid) : grid_(grid) {}
  int RowCount() const override;
  int CurrentRow() const override;
  QDate DateOf(int row) const override;
  QString CellText(int row, const QString &column) const override;

 private:
  const BoundGrid &grid_;
};

}  // namespace trimlog
