#pragma once

#include <QTimer>

#include "platform/grid/grid_columns.h"
#include "platform/machine/settings_store.h"

namespace trimlog {

class BoundGrid;

/// The widths of a grid's columns: their own, what the person sets with the mouse (kept in the settings store), and
/// what one column gets from others for a while.
class GridWidths : public QObject {
  Q_OBJECT
 public:
  explicit GridWidths(BoundGrid &grid);
  ~GridWidths() override;

  /// Widths come from and go to this place of the store (value name: the column's).
  void Keep(SettingsStore &store, const QString &key);
  /// From now on column `to` is wider by the width of `from` while that one is hidden. At most one pair.
  void GiveRoom(const QString &from, const QString &to);
  /// This column takes what the others leave of the grid's width.
  void SetSpare(const QString &column);
  void Apply();      ///< every column as it should be: another font, other columns
  void FillSpare();  ///< the grid has another width
  void Show(int column, bool visible);
  void SaveNow();  ///< what was resized and is not kept yet

 private:
  int OwnWidth(const GridColumn &column) const;
  int RoomGivenTo(const GridColumn &column) const;
  int ColumnOf(const QString &name) const;
  void Resized(int column);
  void Save();

  BoundGrid &grid_;
  SettingsStore *store_ = nullptr;
  QString key_;
  QString roomFrom_;
  QString roomTo_;
  QString spare_;
  int spareGiven_ = 0;
  QTimer saveLater_;
  bool applying_ = false;
};

}  // namespace trimlog
