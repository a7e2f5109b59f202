#pragma once

#include <QTimer>
#include <functional>
#include <vector>

namespace trimlog {

class BoundGrid;

/// When a grid reads its rows: those in view before they are painted, the keys behind the first page once that page
/// stands on the screen, everything afresh where something was changed elsewhere. The person's place is kept by key.
class GridReading {
 public:
  explicit GridReading(BoundGrid &grid);

  /// Shows other rows, beginning with the first. Saves the row being changed first; false when that was refused
  /// (nothing happens then) or reading failed.
  bool Show(const std::function<void()> &open);
  bool Refresh();
  bool RefreshRows(const std::vector<qint64> &keys);
  void KeepingPlace(const std::function<void()> &work);
  void Prefetch();         ///< the rows in view, and a page before and behind them
  void ReadTheRestSoon();  ///< the keys behind the first page

 private:
  bool HoldsOrder() const;
  void GoToFirstRow();

  BoundGrid &grid_;
  QTimer restLater_;
};

}  // namespace trimlog
