#include "platform/grid/grid_model.h"

#include <algorithm>
#include <utility>

#include "platform/grid/grid_cells.h"
#include "platform/grid/grid_lookup.h"

namespace trimlog {

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

void GridModel::CollectFields() {
  QStringList fields;
  for (const GridColumn &column : columns_) {
    for (const QString &field : {column.field, column.textField}) {
      if (!field.isEmpty() && !fields.contains(field)) fields.append(field);
    }
  }
  rows_.SetFields(fields);
}

void GridModel::Show(GridRows::Reading reading) {
  beginResetModel();
  rows_.Take(std::move(reading));
  changedLookups_.clear();
  if (edit_ && !edit_->IsNew() && RowOfKey(edit_->Key()) < 0) edit_.reset();
  endResetModel();
}

void GridModel::Open(Database &database, const GridSource &source) {
  Show(rows_.Read(database, source, GridRows::Extent::FirstPage));
}

void GridModel::SetSource(const GridSource &source, bool whole) {
  if (!IsOpen()) return;
  Show(rows_.Read(File(), source, whole ? GridRows::Extent::Whole : GridRows::Extent::FirstPage));
}

void GridModel::Refresh(bool keepOrder) {
  if (!IsOpen()) return;
  Show(rows_.Read(File(), Source(), keepOrder ? GridRows::Extent::WholeInOldOrder : GridRows::Extent::FirstPage));
}

void GridModel::RefreshRow(qint64 key) {
  rows_.Forget(key);
  AnnounceRow(RowOfKey(key));
}

bool GridModel::RefreshRows(const std::vector<qint64> &keys) {
  constexpr size_t cheaperReadWhole = 1000;
  if (!IsOpen()) return true;
  if (keys.size() > cheaperReadWhole || !rows_.StandAsShown(keys)) return false;
  for (const qint64 key : keys) RefreshRow(key);
  return true;
}

void GridModel::LoadAllKeys() {
  const int counted = rows_.Count();
  rows_.Keys().ReadAll();
  if (rows_.Count() != counted) Refresh();
}

bool GridModel::AllKeysLoaded() const { return rows_.Keys().Complete(); }

void GridModel::Need(int first, int last) { rows_.Need(first, last); }

std::optional<qint64> GridModel::KeyOfRow(int row) const { return rows_.KeyOf(row); }

Value GridModel::FieldOf(int row, const QString &field) const {
  if (edit_ && row == ChangingRow()) return edit_->Get(field);
  return rows_.Field(row, field);
}

int GridModel::FindFirst(const QString &criterion, const Params &params) const {
  return rows_.FindFirst(criterion, params);
}

int GridModel::FindPrefix(const QString &field, const QString &text) const {
  const QString column = QualifiedField(Source(), field);
  return FindFirst(QStringLiteral("LCase(Left(%1, %2)) = ?").arg(column).arg(text.size()), {text.toLower()});
}

QList<QVariantMap> GridModel::WholeRows(const std::vector<qint64> &keys) const { return rows_.Whole(keys); }

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
  if (column.type == GridType::Lookup) return LookupShown(index.row(), column);
  const Value value = FieldOf(index.row(), column.field);
  return forEditing ? TypedForm(column, value, locale_) : ShowCell(column, value, locale_);
}

// The text that is joined in belongs to the stored key; that of a key chosen since is looked up once.
QString GridModel::LookupShown(int row, const GridColumn &column) const {
  const Value key = FieldOf(row, column.field);
  const bool chosen = edit_ && row == ChangingRow() && edit_->IsChanged(column.field);
  if (!chosen && !column.textField.isEmpty()) return FieldOf(row, column.textField).toString();
  QString &text = changedLookups_[column.name + QLatin1Char('/') + key.toString()];
  if (text.isEmpty()) text = LookupText(File(), *column.lookup, key);
  return text;
}

QString GridModel::SentenceOf(const QModelIndex &index, const GridColumn &column) const {
  if (!edit_ || index.row() != ChangingRow()) return {};
  const QString own = edit_->Sentence(column.field);
  return own.isEmpty() && edit_->IsChanged(column.field) ? edit_->rowSentence : own;
}

QVariant GridModel::data(const QModelIndex &index, int role) const try {
  const GridColumn *const column = ColumnAt(index);
  if (!column || column->field.isEmpty() || !IsOpen()) return {};
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
  if (!column->editable || column->field.isEmpty() || !IsOpen()) return flags;
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
