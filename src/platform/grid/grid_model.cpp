#include "platform/grid/grid_model.h"

#include <QSet>
#include <algorithm>
#include <utility>

#include "platform/grid/grid_blocks.h"
#include "platform/grid/grid_cells.h"
#include "platform/store/key_reader.h"
#include "platform/store/recordset.h"

namespace trimlog {

namespace {

std::vector<qint64> KeysOf(Database &database, const GridStatement &statement) {
  return ReadKeys(database, statement.sql, statement.params);
}

}  // namespace

GridModel::GridModel(const QLocale &locale, QObject *parent) : QAbstractTableModel(parent), locale_(locale) {}
GridModel::~GridModel() = default;

void GridModel::SetColumns(GridColumns columns) {
  beginResetModel();
  columns_ = std::move(columns);
  CollectFields();
  endResetModel();
}

int GridModel::ColumnByName(const QString &name) const {
  for (size_t column = 0; column < columns_.size(); ++column) {
    if (columns_[column].name == name) return static_cast<int>(column);
  }
  return -1;
}

const GridColumn *GridModel::ColumnAt(const QModelIndex &index) const {
  if (!index.isValid() || index.column() >= static_cast<int>(columns_.size())) return nullptr;
  return &columns_[index.column()];
}

void GridModel::RebindColumn(const QString &name, const QString &field, const QString &caption,
                             const QString &pattern) {
  const int column = ColumnByName(name);
  if (column < 0) return;
  GridColumn &bound = columns_[column];
  const bool otherField = bound.field != field;
  bound.field = field;
  bound.pattern = pattern;
  SetCaption(name, caption);
  if (otherField) CollectFields();
  if (RecordCount() > 0) Q_EMIT dataChanged(index(0, column), index(RecordCount() - 1, column));
}

void GridModel::SetCaption(const QString &name, const QString &caption) {
  const int column = ColumnByName(name);
  if (column < 0) return;
  columns_[column].caption = caption;
  Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void GridModel::SetChoices(const QString &name, const QList<GridChoice> &choices) {
  const int column = ColumnByName(name);
  if (column < 0) return;
  columns_[column].choices = choices;
  if (RecordCount() > 0) Q_EMIT dataChanged(index(0, column), index(RecordCount() - 1, column));
}

void GridModel::SetColumnVisible(const QString &name, bool visible) {
  const int column = ColumnByName(name);
  if (column >= 0) columns_[column].visible = visible;
}

void GridModel::SetAllowNew(bool allow) {
  if (allow == allowNew_) return;
  beginResetModel();
  allowNew_ = allow;
  endResetModel();
}

// Fetched rows hold the columns' fields by position: with other fields they are read again.
void GridModel::CollectFields() {
  fields_.clear();
  for (const GridColumn &column : columns_) {
    if (!column.field.isEmpty() && !fields_.contains(column.field)) fields_.append(column.field);
  }
  cache_.Clear();
}

void GridModel::Open(Database &database, const GridSource &source) {
  Database *const oldDatabase = std::exchange(database_, &database);
  try {
    SetSource(source);
  } catch (const Error &) {
    database_ = oldDatabase;
    throw;
  }
}

void GridModel::SetSource(const GridSource &source, bool whole) {
  const GridSource old = std::exchange(source_, source);
  try {
    Reread(whole);
  } catch (const Error &) {
    source_ = old;
    throw;
  }
}

void GridModel::Refresh(bool keepOrder) { Reread(keepOrder, keepOrder); }

void GridModel::Reread(bool whole, bool keepOrder) {
  if (!database_) return;
  GridKeys fresh;
  const auto read = [database = database_, source = source_](int top) {
    return KeysOf(*database, KeysStatement(source, top));
  };
  if (whole) {
    fresh.LoadWhole(read);
  } else {
    fresh.Load(read, [this] {
      const GridStatement count = CountStatement(source_);
      return database_->OpenRecordset(count.sql, count.params, RecordsetKind::Forward).Field(0).toInt();
    });
  }
  if (keepOrder) fresh.OrderLike(keys_);
  beginResetModel();
  keys_ = std::move(fresh);
  cache_.Clear();
  if (edit_ && !edit_->IsNew() && keys_.RowOf(edit_->Key()) < 0) edit_.reset();
  endResetModel();
}

void GridModel::RefreshRow(qint64 key) {
  cache_.Forget(key);
  AnnounceRow(keys_.RowOf(key));
}

bool GridModel::RefreshRows(const std::vector<qint64> &keys) {
  constexpr size_t cheaperReadWhole = 1000;
  if (!database_) return true;
  if (keys.size() > cheaperReadWhole) return false;
  QSet<qint64> belonging;
  InBlocks(keys, RowCache::block, [&](const std::vector<qint64> &some) {
    for (const qint64 key : KeysOf(*database_, BelongingStatement(source_, some))) belonging.insert(key);
  });
  for (const qint64 key : keys) {
    if (belonging.contains(key) != (keys_.RowOf(key) >= 0)) return false;
  }
  for (const qint64 key : keys) RefreshRow(key);
  return true;
}

void GridModel::LoadAllKeys() {
  const int counted = keys_.Count();
  keys_.ReadAll();
  if (keys_.Count() != counted) Reread();
}

bool GridModel::AllKeysLoaded() const { return keys_.Complete(); }

void GridModel::Need(int first, int last) {
  if (!database_) return;
  cache_.Need(keys_.Range(first, last), [this](const auto &keys) { return FetchRows(keys); });
}

std::vector<GridRow> GridModel::FetchRows(const std::vector<qint64> &keys) const {
  std::vector<GridRow> rows;
  const QStringList fields = fields_.isEmpty() ? QStringList{source_.key} : fields_;
  const GridStatement statement = RowsStatement(source_, fields, keys);
  Recordset found = database_->OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
  for (; !found.Eof(); found.MoveNext()) {
    GridRow row{found.Field(0).toLongLong(), {}};
    row.values.reserve(static_cast<size_t>(fields.size()));
    for (int field = 1; field <= fields.size(); ++field) row.values.push_back(found.Field(field));
    rows.push_back(std::move(row));
  }
  return rows;
}

const GridRow *GridModel::FetchedRow(int row) const {
  const qint64 key = keys_.At(row);
  if (!cache_.Contains(key)) {
    const int start = row - row % RowCache::block;
    cache_.Need(keys_.Range(start, start + RowCache::block - 1), [this](const auto &keys) { return FetchRows(keys); });
  }
  return cache_.Find(key);
}

Value GridModel::StoredField(int row, const QString &field) const {
  if (row < 0 || row >= RecordCount()) return {};
  const qsizetype position = fields_.indexOf(field);
  if (position < 0) {
    const QList<QVariantMap> whole = WholeRows({keys_.At(row)});
    return whole.isEmpty() ? Value() : whole.first().value(field);
  }
  const GridRow *const found = FetchedRow(row);
  return found && position < static_cast<qsizetype>(found->values.size()) ? found->values[position] : Value();
}

int GridModel::RecordCount() const { return keys_.Count(); }

std::optional<qint64> GridModel::KeyOfRow(int row) const {
  if (row < 0 || row >= RecordCount()) return std::nullopt;
  return keys_.At(row);
}

int GridModel::RowOfKey(qint64 key) const { return keys_.RowOf(key); }

std::vector<int> GridModel::RowsOfKeys(std::vector<qint64> keys) const {
  std::vector<int> rows;
  if (keys.empty()) return rows;
  std::sort(keys.begin(), keys.end());
  const std::vector<qint64> &all = keys_.All();
  for (size_t row = 0; row < all.size(); ++row) {
    if (std::binary_search(keys.begin(), keys.end(), all[row])) rows.push_back(static_cast<int>(row));
  }
  return rows;
}

Value GridModel::FieldOf(int row, const QString &field) const {
  if (edit_ && row == ChangingRow()) return edit_->Get(field);
  return StoredField(row, field);
}

int GridModel::FindFirst(const QString &criterion, const Params &params) const {
  const std::vector<qint64> found = KeysOf(*database_, FindStatement(source_, criterion, params));
  return found.empty() ? -1 : keys_.RowOf(found.front());
}

int GridModel::FindPrefix(const QString &field, const QString &text) const {
  const QString column = QualifiedField(source_, field);
  return FindFirst(QStringLiteral("LCase(Left(%1, %2)) = ?").arg(column).arg(text.size()), {text.toLower()});
}

QList<QVariantMap> GridModel::WholeRows(const std::vector<qint64> &keys) const {
  QHash<qint64, QVariantMap> found;
  InBlocks(keys, RowCache::block, [&](const std::vector<qint64> &some) {
    const GridStatement statement = RowsStatement(source_, {}, some);
    Recordset rows = database_->OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
    const QStringList names = rows.FieldNames();
    for (; !rows.Eof(); rows.MoveNext()) {
      QVariantMap values;
      for (int column = 0; column < names.size(); ++column) values.insert(names[column], rows.Field(column));
      found.insert(rows.Field(source_.key).toLongLong(), values);
    }
  });
  QList<QVariantMap> inOrder;
  for (const qint64 key : keys) {
    if (found.contains(key)) inOrder.append(found.value(key));
  }
  return inOrder;
}

int GridModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : RecordCount() + (allowNew_ ? 1 : 0);
}

int GridModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::CellText(const QModelIndex &index, const GridColumn &column, bool forEditing) const {
  if (edit_ && index.row() == ChangingRow()) {
    if (const QString *const typed = edit_->RefusedText(column.field)) return *typed;
  }
  const Value value = FieldOf(index.row(), column.field);
  return forEditing ? TypedForm(column, value, locale_) : ShowCell(column, value, locale_);
}

QString GridModel::SentenceOf(const QModelIndex &index, const GridColumn &column) const {
  if (!edit_ || index.row() != ChangingRow()) return {};
  const QString own = edit_->Sentence(column.field);
  return own.isEmpty() && edit_->IsChanged(column.field) ? edit_->rowSentence : own;
}

QVariant GridModel::data(const QModelIndex &index, int role) const try {
  const GridColumn *const column = ColumnAt(index);
  if (!column || column->field.isEmpty() || !database_) return {};
  switch (role) {
    case Qt::DisplayRole:
      return column->type == GridType::Check ? QVariant() : CellText(index, *column, false);
    case Qt::EditRole:
      return CellText(index, *column, true);
    case Qt::CheckStateRole: {
      if (column->type != GridType::Check || index.row() >= RecordCount()) return {};
      return FieldOf(index.row(), column->field).toBool() ? Qt::Checked : Qt::Unchecked;
    }
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(*column));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
    case SentenceRole:
      return SentenceOf(index, *column);
    case Qt::AccessibleTextRole:
      if (column->type != GridType::Check || index.row() >= RecordCount()) return {};
      return FieldOf(index.row(), column->field).toBool() ? tr("Checked") : tr("Not checked");
    case CellChangedRole:
      return IsFieldChanged(index);
    case ValueRole:
      return FieldOf(index.row(), column->field);
    default:
      return {};
  }
} catch (const Error &) {
  return {};  // a row that cannot be read is shown empty; what the person does next meets the same failure and tells it
}

QString GridModel::RowStateInWords(int row) const {
  if (!edit_ || row != ChangingRow()) return row == RecordCount() && allowNew_ ? tr("New row") : QString();
  return edit_->HasRefusals() || !edit_->rowSentence.isEmpty() ? tr("Refused") : tr("Changed, not saved yet");
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
    if (role == Qt::ToolTipRole && edit_ && section == ChangingRow()) return edit_->rowSentence;
    if (role == Qt::AccessibleTextRole) return RowStateInWords(section);
    if (role != Qt::DisplayRole) return {};
    if (edit_ && section == ChangingRow()) {
      return edit_->HasRefusals() || !edit_->rowSentence.isEmpty() ? QStringLiteral("!") : QString(QChar(0x2022));
    }
    return section == RecordCount() && allowNew_ ? QStringLiteral("*") : QString();
  }
  if (section < 0 || section >= static_cast<int>(columns_.size())) return {};
  const GridColumn &column = columns_[section];
  switch (role) {
    case Qt::DisplayRole:
      return column.caption;
    case Qt::AccessibleTextRole:
      return QString(column.caption).replace(QLatin1Char('\n'), QLatin1Char(' '));
    case ColumnNameRole:
      return column.name;
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(column));
    default:
      return {};
  }
}

Qt::ItemFlags GridModel::flags(const QModelIndex &index) const {
  const GridColumn *const column = ColumnAt(index);
  if (!column) return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (!column->editable || column->field.isEmpty() || !database_) return flags;
  const int row = index.row();
  const auto field = [this, row](const QString &name) { return FieldOf(row, name); };
  try {
    if (hooks.isReadOnly && row < RecordCount() && hooks.isReadOnly(field)) return flags;
  } catch (const Error &) {
    return flags;
  }
  return flags | (column->type == GridType::Check ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

}  // namespace trimlog
