#pragma once

#include <QItemSelectionModel>
#include <functional>
#include <optional>
#include <vector>

namespace trimlog {

class GridModel;

/// The current cell and the marked rows of a bound grid, told by key. The current row changes only when the row being
/// changed could be left.
class GridSelection : public QItemSelectionModel {
  Q_OBJECT
 public:
  /// Saves the row being changed and says where to go then; an invalid index when it may not be left.
  using Leave = std::function<QModelIndex(const QModelIndex &target)>;
  GridSelection(GridModel &model, Leave leave, QObject *parent);

  void setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) override;
  /// Makes a cell current and marks its row alone. False when the row being changed could not be left.
  bool GoTo(const QModelIndex &cell);

  std::optional<qint64> CurrentKey() const;
  std::vector<int> MarkedRows() const;  ///< ascending
  std::vector<qint64> MarkedKeys() const;
  void MarkKeys(const std::vector<qint64> &keys);
  /// The marked rows, or the current one when none is marked.
  std::vector<qint64> KeysMeant() const;

  /// True when rows are marked as such (by hand, or more than one), not only because a cell in them is current.
  bool RowsMarked() const;
  bool chosenByHand = false;  ///< the current row was marked as a row; another current cell ends it

  /// While Shift is held, marking reaches from the row last gone to without it. True when that marked something.
  bool extending = false;
  bool ExtendMarks();

 private:
  void OnCurrentChanged();

  GridModel &model_;
  Leave leave_;
  std::optional<qint64> anchor_;
};

}  // namespace trimlog
