#include "platform/windows/grid/grid_sorting.h"

#include <QHeaderView>

#include "platform/grid/grid_guard.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

bool GridSorting::By(const QString &columnName, bool descending) {
  GridModel &model = grid_.Model();
  const int column = model.ColumnByName(columnName);
  const QString field = column < 0 ? QString() : ShownField(model.Columns()[column]);
  if (field.isEmpty() || !model.IsOpen() || !grid_.CommitRow()) return false;
  GridSource source = model.Source();
  source.order = {{field, descending}};
  const bool sorted = RunGuarded(model, GridAction::Load,
                                 [&] { grid_.Reading().KeepingPlace([&] { model.SetSource(source, true); }); });
  ShowArrow();
  if (grid_.currentIndex().isValid()) grid_.scrollTo(grid_.currentIndex());
  if (sorted) Q_EMIT grid_.Sorted();
  return sorted;
}

bool GridSorting::IsBy(const GridColumn &column) const {
  const GridSource &source = grid_.Model().Source();
  return !source.order.isEmpty() && !column.field.isEmpty() &&
         QualifiedField(source, ShownField(column)) == QualifiedField(source, source.order.first().field);
}

void GridSorting::ByClick(int section) {
  if (!grid_.canSort || section < 0) return;
  const GridColumn &column = grid_.Model().Columns()[section];
  const bool again = IsBy(column) && !grid_.Model().Source().order.first().descending;
  if (!By(column.name, again)) ShowArrow();  // the click has moved the arrow
}

void GridSorting::ShowArrow() {
  const GridColumns &columns = grid_.Model().Columns();
  const QList<GridOrder> &order = grid_.Model().Source().order;
  QHeaderView *const captions = grid_.horizontalHeader();
  int sorted = -1;
  for (int column = 0; grid_.canSort && sorted < 0 && column < static_cast<int>(columns.size()); ++column) {
    if (IsBy(columns[column]) && columns[column].visible) sorted = column;
  }
  captions->setSortIndicatorShown(sorted >= 0);
  if (sorted >= 0) {
    captions->setSortIndicator(sorted, order.first().descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  }
  grid_.FollowScrolling();
}

}  // namespace trimlog
