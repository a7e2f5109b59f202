#pragma once

#include <QModelIndex>
#include <QString>

class QKeyEvent;

namespace trimlog {

class BoundGrid;

/// The keys of a grid that the table view knows nothing of: Esc takes back, Tab and Enter go to the next cell that can
/// be changed, Del and Backspace clear or delete, F4 and Alt+Down open what a cell has to choose from, Shift+F10 the
/// menu, Shift+Space marks the row, and letters look for a row where nothing can be typed.
class GridKeyboard {
 public:
  explicit GridKeyboard(BoundGrid &grid) : grid_(grid) {}

  /// True when the key was dealt with; whether it goes on to the window is said in the event.
  bool Press(QKeyEvent &event);
  QModelIndex NextEditable(bool forward) const;
  void LookFor(const QString &letters);  ///< goes on with what was typed just before

 private:
  bool OnCell(const QKeyEvent &event);
  bool Leave(const QKeyEvent &event);
  bool TakeBack();
  bool Delete();
  bool IsLooking() const;
  QString SortedField() const;  ///< the first of the order that is seen; "" where nothing is sorted

  BoundGrid &grid_;
  QString typedAhead_;
  qint64 typedAheadAt_ = 0;
};

}  // namespace trimlog
