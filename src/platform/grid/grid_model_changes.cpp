// The changing half of GridModel: the row being changed, saving it, deleting rows.
#include <algorithm>
#include <memory>

#include "platform/grid/grid_cells.h"
#include "platform/grid/grid_lookup.h"
#include "platform/grid/grid_model.h"
#include "platform/grid/grid_writing.h"

namespace trimlog {

int GridModel::ChangingRow() const {
  if (!edit_) return -1;
  return edit_->IsNew() ? RecordCount() : RowOfKey(edit_->Key());
}

GridRowEdit &GridModel::BeginChange(int row) {
  if (!edit_) {
    const bool isNew = row >= RecordCount();
    const qint64 key = isNew ? 0 : rows_.Keys().At(row);
    edit_ = std::make_unique<GridRowEdit>(key, isNew, [this, key, isNew](const QString &field) {
      return isNew ? Value() : rows_.Field(RowOfKey(key), field);
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

  const TypedCell typed = ReadCell(index, *column, value, role);
  const bool untouched = role == Qt::EditRole && data(index, Qt::EditRole).toString() == value.toString();
  if (untouched) return typed.sentence.isEmpty();  // an editor opened and left changes nothing, nor starts a new row
  GridRowEdit &row = BeginChange(index.row());
  row.rowSentence.clear();
  if (typed.sentence.isEmpty()) {
    row.Set(column->field, typed.value);
  } else {
    row.Refuse(column->field, value.toString(), typed.sentence);
  }
  if (typed.sentence.isEmpty() && hooks.afterCell && row.IsChanged(column->field)) hooks.afterCell(row, column->name);
  DropEditWhenEmpty();
  AnnounceRow(index.row());
  Q_EMIT CellEdited(index.row(), column->name);
  return typed.sentence.isEmpty();
}

TypedCell GridModel::ReadCell(const QModelIndex &index, const GridColumn &column, const QVariant &value,
                              int role) const {
  if (role == Qt::CheckStateRole) return CheckValue(column, value.toInt() == Qt::Checked);
  if (role == ValueRole) return CheckValue(column, value);
  const QString text = value.toString();
  const TypedCell typed = column.type == GridType::Lookup ? ReadLookup(column, text) : ReadTyped(column, text, locale_);
  return Mended(column, text, typed, FieldOf(index.row(), column.field));
}

TypedCell GridModel::ReadLookup(const GridColumn &column, const QString &text) const {
  const std::optional<qint64> key = LookupKey(File(), *column.lookup, text);
  return key ? CheckValue(column, *key) : ReadTyped(column, text, locale_);
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

QString GridModel::RefusalOfRow() const {
  if (!edit_) return {};
  for (const GridColumn &column : columns_) {
    if (const QString sentence = edit_->Sentence(column.field); !sentence.isEmpty()) return sentence;
  }
  return edit_->rowSentence;
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
  rows_.Keys().ReadAll();
  // Shared with what waits for the commit, which an outer transaction may put off until this has returned.
  const auto key = std::make_shared<qint64>(0);
  {
    Transaction transaction(File());
    File().AfterCommit([this, key] { TakeOverSaved(*key); });
    if (edit_->IsNew() && hooks.beforeInsert) hooks.beforeInsert(*edit_);
    const QString sentence = hooks.beforeUpdate ? hooks.beforeUpdate(*edit_) : QString();
    if (!sentence.isEmpty()) {
      SetRowSentence(sentence);
      return false;
    }
    *key = WriteRow(File(), Source(), *edit_);
    if (hooks.withUpdate) hooks.withUpdate(*edit_, *key);
    transaction.Commit();
  }
  if (hooks.afterUpdate) hooks.afterUpdate(*key);
  return true;
}

void GridModel::TakeOverSaved(qint64 key) {
  const int row = ChangingRow();
  const bool isNew = edit_->IsNew();
  edit_.reset();
  rows_.Forget(key);
  if (isNew) {
    beginInsertRows({}, row + 1, row + 1);
    rows_.Keys().Append(key);
    endInsertRows();
  }
  AnnounceRow(row);
}

void GridModel::DeleteRows(const std::vector<qint64> &keys) {
  if (keys.empty()) return;
  Transaction transaction(File());
  File().AfterCommit([this, keys] {
    if (edit_ && std::find(keys.begin(), keys.end(), edit_->Key()) != keys.end()) edit_.reset();
    Refresh();
  });
  trimlog::DeleteRows(File(), Source(), keys);
  if (hooks.withDelete) hooks.withDelete(keys);
  transaction.Commit();
}

}  // namespace trimlog
