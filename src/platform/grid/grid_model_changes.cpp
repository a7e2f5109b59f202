// The changing half of GridModel: the row being changed, saving it, deleting rows.
#include <algorithm>

#include "platform/grid/grid_blocks.h"
#include "platform/grid/grid_cells.h"
#include "platform/grid/grid_model.h"

namespace trimlog {

int GridModel::ChangingRow() const {
  if (!edit_) return -1;
  return edit_->IsNew() ? RecordCount() : keys_.RowOf(edit_->Key());
}

GridRowEdit &GridModel::BeginChange(int row) {
  if (!edit_) {
    const bool isNew = row >= RecordCount();
    const qint64 key = isNew ? 0 : keys_.At(row);
    edit_ = std::make_unique<GridRowEdit>(key, isNew, [this, key, isNew](const QString &field) {
      return isNew ? Value() : StoredField(keys_.RowOf(key), field);
    });
  }
  return *edit_;
}

bool GridModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  const GridColumn *const column = ColumnAt(index);
  const bool tick = role == Qt::CheckStateRole;
  if (!column || (role != Qt::EditRole && role != ValueRole && !tick)) return false;
  if (!(flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable))) return false;
  if (edit_ && ChangingRow() != index.row()) return false;

  const TypedCell typed = tick                ? CheckValue(*column, value.toInt() == Qt::Checked)
                          : role == ValueRole ? CheckValue(*column, value)
                                              : ReadTyped(*column, value.toString(), locale_);
  const bool untouched = role == Qt::EditRole && data(index, Qt::EditRole).toString() == value.toString();
  if (untouched) return typed.sentence.isEmpty();  // an editor opened and left changes nothing, nor starts a new row
  GridRowEdit &row = BeginChange(index.row());
  row.rowSentence.clear();
  if (typed.sentence.isEmpty()) {
    row.Set(column->field, typed.value);
  } else {
    row.Refuse(column->field, value.toString(), typed.sentence);
  }
  DropEditWhenEmpty();
  AnnounceRow(index.row());
  Q_EMIT CellEdited(index.row(), column->name);
  return typed.sentence.isEmpty();
}

void GridModel::DropEditWhenEmpty() {
  if (edit_ && edit_->IsEmpty()) edit_.reset();
}

void GridModel::AnnounceRow(int row) {
  if (row < 0 || row >= rowCount()) return;
  Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
  Q_EMIT headerDataChanged(Qt::Vertical, row, row);
  Q_EMIT RowStateChanged(row);
}

bool GridModel::IsFieldChanged(const QModelIndex &index) const {
  const GridColumn *const column = ColumnAt(index);
  if (!column || !edit_ || index.row() != ChangingRow()) return false;
  return edit_->IsChanged(column->field) || edit_->RefusedText(column->field);
}

void GridModel::UndoField(const QModelIndex &index) {
  if (!IsFieldChanged(index)) return;
  edit_->Undo(ColumnAt(index)->field);
  DropEditWhenEmpty();
  AnnounceRow(index.row());
  Q_EMIT CellEdited(index.row(), ColumnAt(index)->name);
}

void GridModel::UndoRow() {
  const int row = ChangingRow();
  if (row < 0) return;
  edit_.reset();
  AnnounceRow(row);
}

void GridModel::SetRowSentence(const QString &sentence) {
  if (!edit_) return;
  edit_->rowSentence = sentence;
  AnnounceRow(ChangingRow());
}

// What follows the commit in the model comes before what the hooks give to it: who hears of the row finds it here.
bool GridModel::SaveRow() {
  if (!edit_) return true;
  if (edit_->HasRefusals()) return false;
  keys_.ReadAll();
  qint64 key = 0;
  {
    Transaction transaction(*database_);
    database_->AfterCommit([this, &key] { TakeOverSaved(key); });
    if (edit_->IsNew() && hooks.beforeInsert) hooks.beforeInsert(*edit_);
    const QString sentence = hooks.beforeUpdate ? hooks.beforeUpdate(*edit_) : QString();
    if (!sentence.isEmpty()) {
      SetRowSentence(sentence);
      return false;
    }
    key = WriteRow();
    if (hooks.withUpdate) hooks.withUpdate(*edit_, key);
    transaction.Commit();
  }
  Q_EMIT RowSaved(key);
  if (hooks.afterUpdate) hooks.afterUpdate(key);
  return true;
}

qint64 GridModel::WriteRow() {
  const GridStatement statement = edit_->IsNew() ? InsertStatement(source_, edit_->Changes())
                                                 : UpdateStatement(source_, edit_->Key(), edit_->Changes());
  const qint64 written = database_->Execute(statement.sql, statement.params);
  if (written == 0) throw Error(error_number::noCurrentRecord, tr("This row has been deleted meanwhile."));
  return edit_->IsNew() ? edit_->Get(source_.key).toLongLong() : edit_->Key();
}

void GridModel::TakeOverSaved(qint64 key) {
  const int row = ChangingRow();
  const bool isNew = edit_->IsNew();
  edit_.reset();
  cache_.Forget(key);
  if (isNew) {
    beginInsertRows({}, row + 1, row + 1);
    keys_.Append(key);
    endInsertRows();
  }
  AnnounceRow(row);
}

void GridModel::DeleteRows(const std::vector<qint64> &keys) {
  if (keys.empty()) return;
  Transaction transaction(*database_);
  database_->AfterCommit([this, &keys] {
    if (edit_ && std::find(keys.begin(), keys.end(), edit_->Key()) != keys.end()) edit_.reset();
    Reread();
  });
  InBlocks(keys, RowCache::block, [this](const std::vector<qint64> &some) {
    const GridStatement statement = DeleteStatement(source_, some);
    database_->Execute(statement.sql, statement.params);
  });
  if (hooks.withDelete) hooks.withDelete(keys);
  transaction.Commit();
}

}  // namespace trimlog
