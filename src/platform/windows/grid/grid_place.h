#pragma once

#include <optional>
#include <vector>

namespace trimlog {

class BoundGrid;

/// Where a person is in a grid, told by keys: current cell, marked rows and the row at the top. Taken before the rows
/// are read afresh and restored after it.
class GridPlace {
 public:
  explicit GridPlace(BoundGrid &grid);
  void Restore() const;

 private:
  BoundGrid &grid_;
  std::optional<qint64> key_;
  int row_ = -1;
  int column_ = -1;
  bool onNewRow_ = false;
  bool chosenByHand_ = false;
  std::optional<qint64> topKey_;
  std::vector<qint64> marked_;
};

}  // namespace trimlog
