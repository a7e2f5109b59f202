#pragma once

#include <QWidget>

#include "journal/day/measurements.h"

namespace trimlog {

class BoundGrid;
class FigureField;

/// pnlBodyTotals2: one figure under each measurement's column of a list, however wide the columns are and however far
/// they are scrolled.
class BodyTotals : public QWidget {
  Q_OBJECT
 public:
  BodyTotals(BoundGrid &grid, QWidget *parent);
  /// What was lost from the last row of the list to its current one; nothing without a row.
  void ShowTotals();

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  void Align();

  BoundGrid &grid_;
  PerMeasurement<FigureField *> lblBodyTotals_{};
};

}  // namespace trimlog
