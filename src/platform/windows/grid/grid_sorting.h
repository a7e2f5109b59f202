#pragma once

#include <QString>

namespace trimlog {

class BoundGrid;
struct GridColumn;

/// The order of a grid's rows: by a column, then the key; and the arrow on the caption that says so.
class GridSorting {
 public:
  explicit GridSorting(BoundGrid &grid) : grid_(grid) {}

  bool By(const QString &columnName, bool descending);  ///< false when nothing was sorted
  void ByClick(int section);                            ///< a click on a caption; on the sorted one turns the order
  void ShowArrow();

 private:
  bool IsBy(const GridColumn &column) const;

  BoundGrid &grid_;
};

}  // namespace trimlog
