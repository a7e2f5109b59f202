#pragma once

#include <QModelIndex>
#include <QString>

namespace trimlog {

class BoundGrid;
class SpokenLabel;

/// Leaving the row that is being changed: saves it, or brings what was refused before the person's eyes, with its
/// sentence on a line below the row until the row is right or taken back.
class RowLeaving {
 public:
  explicit RowLeaving(BoundGrid &grid);

  /// Saves what is being typed. False when it was refused or failed.
  bool Commit();
  /// Saves the row without closing the editor that is open in it: for columns that are saved with every cell.
  bool Save();
  /// A cell of the row was changed: saves the row where the column wants that, and says why the text is refused.
  void AfterCell(const QString &column);
  bool IsUnderWay() const { return underWay_; }
  /// The cell to go to after the row being changed was saved (saving may have moved the rows); an invalid one when that
  /// row may not be left.
  QModelIndex LeaveFor(const QModelIndex &target);
  /// Lays the refusal's line below its row, or takes it away.
  void PlaceSentence();

 private:
  void ShowRefusal();
  void Say(const QString &sentence);

  BoundGrid &grid_;
  SpokenLabel *sentence_;
  bool refused_ = false;
  bool underWay_ = false;
};

}  // namespace trimlog
