#include "platform/windows/grid/cell_choice.h"

#include <QComboBox>

#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/lookup_field.h"

namespace trimlog {

bool CellChoice::PickDate(const QModelIndex &cell) {
  GridModel &model = grid_.Model();
  const bool isDate = cell.isValid() && model.Columns()[cell.column()].type == GridType::Date;
  if (!pickDate_ || !isDate || !cell.flags().testFlag(Qt::ItemIsEditable)) return false;
  grid_.CloseOpenEditor(true);
  // While the person chooses, the rows may be read afresh and stand elsewhere.
  const int column = cell.column();
  const std::optional<qint64> key = model.KeyOfRow(cell.row());
  const std::optional<QDate> date = pickDate_(grid_, cell.data(GridModel::ValueRole).toDate());
  const int row = key ? model.RowOfKey(*key) : model.RecordCount();
  if (date && row >= 0) model.setData(model.index(row, column), *date, GridModel::ValueRole);
  grid_.setFocus();
  return true;
}

bool CellChoice::Open() {
  const QModelIndex cell = grid_.currentIndex();
  if (!cell.flags().testFlag(Qt::ItemIsEditable)) return false;
  const GridType type = grid_.Model().Columns()[cell.column()].type;
  if (type == GridType::Date) return PickDate(cell);
  if (type != GridType::Choice && type != GridType::Lookup) return false;
  grid_.EditCell(cell);
  if (auto *list = qobject_cast<QComboBox *>(grid_.OpenEditor())) list->showPopup();
  if (auto *field = qobject_cast<LookupField *>(grid_.OpenEditor())) field->ShowList();
  return true;
}

}  // namespace trimlog
