#include "journal/windows/grid_day_rows.h"

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

int GridDayRows::RowCount() const { return grid_.Model().RecordCount(); }

int GridDayRows::CurrentRow() const {
  const int row = grid_.currentIndex().row();
  return row < RowCount() ? row : -1;
}

QDate GridDayRows::DateOf(int row) const { return grid_.Model().FieldOf(row, QStringLiteral("ThisDate")).toDate(); }

QString GridDayRows::CellText(int row, const QString &column) const {
  const int at = grid_.Model().ColumnByName(column);
  return at < 0 ? QString() : grid_.Model().index(row, at).data(Qt::EditRole).toString();
}

}  // namespace trimlog
