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
  rows_.SetFields(FieldsOf(columns_));
  endResetModel();
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
  if (otherField) rows_.SetFields(FieldsOf(columns_));
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

void GridModel::Show(GridRows::Reading reading) {
  beginResetModel();
  rows_.Take(std::move(reading));
  chosenTexts_.Forget();
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

Value GridModel::FieldOf(int row, const QString &field) const {
  if (edit_ && row == ChangingRow()) return edit_->Get(field);
  return rows_.Field(row, field);
}

int GridModel::FindPrefix(const QString &field, const QString &text) const {
  const QString column = QualifiedField(Source(), field);
  return FindFirst(QStringLiteral("LCase(Left(%1, %2)) = ?").arg(column).arg(text.size()), {text.toLower()});
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
  if (column.type == GridType::Lookup) return LookupShown(index.row(), column);
  const Value value = FieldOf(index.row(), column.field);
  return forEditing ? TypedForm(column, value, locale_) : ShowCell(column, value, locale_);
}

// The text that is joined in belongs to the stored key, not to one chosen since.
QString GridModel::LookupShown(int row, const GridColumn &column) const {
  const bool chosen = edit_ && row == ChangingRow() && edit_->IsChanged(column.field);
  if (!chosen && !column.textField.isEmpty()) return FieldOf(row, column.textField).toString();
  return chosenTexts_.Of(File(), column, FieldOf(row, column.field));
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
      return edit_ && index.row() == ChangingRow() ? edit_->SentenceShown(column->field) : QString();
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

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return RowHead(section, role);
  return section < 0 || section >= columnCount() ? QVariant() : CaptionData(columns_[section], role);
}

QVariant GridModel::CaptionData(const GridColumn &column, int role) {
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

QVariant GridModel::RowHead(int row, int role) const {
  const bool changing = edit_ && row == ChangingRow();
  switch (role) {
    case Qt::DisplayRole:
      if (changing) return edit_->IsRefused() ? QStringLiteral("!") : QString(QChar(0x2022));
      return row == RecordCount() && allowNew_ ? QStringLiteral("*") : QString();
    case Qt::AccessibleTextRole:
      if (changing) return edit_->IsRefused() ? tr("Refused") : tr("Changed, not saved yet");
      return row == RecordCount() && allowNew_ ? tr("New row") : QString();
    case Qt::ToolTipRole:
      return changing ? edit_->rowSentence : QVariant();
    case Qt::TextAlignmentRole:
      return Qt::AlignCenter;
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
