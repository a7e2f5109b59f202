#pragma once

#include <QItemSelectionModel>

namespace trimlog {

class BoundGrid;

/// The selection of a bound grid: its current row changes only when the row being changed could be saved.
class GridSelection : public QItemSelectionModel {
  Q_OBJECT
 public:
  explicit GridSelection(BoundGrid *grid);
  void setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) override;

 private:
  BoundGrid *grid_;
};

}  // namespace trimlog
