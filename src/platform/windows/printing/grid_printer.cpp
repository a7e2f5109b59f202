#include "platform/windows/printing/grid_printer.h"

#include "platform/grid/grid_cells.h"
#include "platform/grid/grid_export.h"
#include "platform/twips.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

PrintedList PrintedGrid(BoundGrid &grid, const QString &heading) {
  const GridModel &model = grid.Model();
  grid.Model().LoadAllKeys();
  PrintedList list;
  list.heading = heading;
  list.rows = model.RecordCount();
  const std::vector<int> columns = TextColumns(model);
  for (const int column : columns) {
    const GridColumn &shown = model.Columns()[column];
    list.columns.push_back({shown.caption, static_cast<double>(grid.columnWidth(column)) * twipsPerPixel,
                            bool(AlignmentOf(shown) & Qt::AlignRight)});
  }
  list.cell = [&model, columns](int row, int column) { return CellAsText(model, row, columns[column]); };
  return list;
}

}  // namespace trimlog
