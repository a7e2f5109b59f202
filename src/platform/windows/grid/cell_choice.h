#pragma once

#include <QDate>
#include <QModelIndex>
#include <functional>
#include <optional>

class QWidget;

namespace trimlog {

class BoundGrid;

/// What the current cell has to choose from: its list, the rows of its lookup, a calendar.
class CellChoice {
 public:
  /// Asks the person for a date, beginning with the one shown; nothing when none was chosen.
  using DatePicker = std::function<std::optional<QDate>(QWidget &owner, const QDate &shown)>;

  explicit CellChoice(BoundGrid &grid) : grid_(grid) {}

  void SetDatePicker(DatePicker picker) { pickDate_ = std::move(picker); }
  bool Open();                             ///< false when there is nothing to choose
  bool PickDate(const QModelIndex &cell);  ///< false for a cell that holds no date to be picked

 private:
  BoundGrid &grid_;
  DatePicker pickDate_;
};

}  // namespace trimlog
