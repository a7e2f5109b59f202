#pragma once

#include <QPushButton>

namespace trimlog {

class BoundGrid;

/// A button that stands beside the current row of a grid and goes with it. It is not to be seen while no row is
/// current, or the current one is scrolled away.
class RowButton : public QPushButton {
  Q_OBJECT
 public:
  RowButton(const QString &name, const QString &caption, QWidget *parent);

  /// A strip as wide as the button, to be laid out beside a grid.
  QWidget *MakeStrip(QWidget *parent) const;
  /// From now on the button stands in this strip, beside the rows of this grid.
  void StandBeside(BoundGrid &grid, QWidget &strip);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Follow(BoundGrid &grid);
  void Place();

  BoundGrid *grid_ = nullptr;
};

}  // namespace trimlog
