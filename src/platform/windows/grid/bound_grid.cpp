#include "platform/windows/grid/bound_grid.h"

#include <QHeaderView>
#include <algorithm>

#include "platform/windows/grid/grid_delegate.h"

namespace trimlog {

bool CanChange(const QModelIndex &cell) {
  return cell.isValid() && (cell.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable));
}

BoundGrid::BoundGrid(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent)
    : QTableView(parent),
      model_(new GridModel(locale, this)),
      leaving_(*this),
      selection_(new GridSelection(
          *model_, [this](const QModelIndex &cell) { return LeaveRowFor(cell); }, this)) {
  setObjectName(objectName);
  setAccessibleName(label);
  setModel(model_);
  QItemSelectionModel *const old = selectionModel();
  setSelectionModel(selection_);
  delete old;
  setItemDelegate(new GridDelegate(this));
  SetUpView();
  SetUpHeads();
  widths_ = new GridWidths(*this);
  ApplyFont();
  connect(model_, &GridModel::CellEdited, this, [this](int, const QString &column) { leaving_.AfterCell(column); });
  connect(model_, &GridModel::RowStateChanged, this, [this] { leaving_.PlaceSentence(); });
  connect(model_, &QAbstractItemModel::modelReset, this, [this] { leaving_.PlaceSentence(); });
  connect(model_, &QAbstractItemModel::modelReset, this, [this] { emptyNote_.Follow(); });
  connect(model_, &QAbstractItemModel::rowsInserted, this, [this] { emptyNote_.Follow(); });
}

BoundGrid::~BoundGrid() { widths_->SaveNow(); }

void BoundGrid::SetUpView() {
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setCornerButtonEnabled(false);
}

void BoundGrid::SetUpHeads() {
  QHeaderView *const captions = horizontalHeader();
  captions->setHighlightSections(false);
  captions->setSectionsClickable(true);
  captions->setMinimumSectionSize(16);
  disconnect(captions, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
  disconnect(captions, SIGNAL(sectionEntered(int)), this, SLOT(_q_selectColumn(int)));
  connect(captions, &QHeaderView::sectionClicked, this, [this](int section) { sorting_.ByClick(section); });
  connect(captions, &QHeaderView::sectionResized, this, &BoundGrid::FollowScrolling);
  QHeaderView *const heads = verticalHeader();
  disconnect(heads, SIGNAL(sectionPressed(int)), this, SLOT(selectRow(int)));
  connect(heads, &QHeaderView::sectionPressed, this, [this](int row) { mouse_.ChooseRow(row); });
  heads->setSectionResizeMode(QHeaderView::Fixed);
  heads->setHighlightSections(true);
}

// ---- Columns

void BoundGrid::SetColumns(GridColumns columns) {
  const auto any = [&columns](auto is) { return std::any_of(columns.begin(), columns.end(), is); };
  setTabKeyNavigation(any([](const GridColumn &column) { return column.editable; }));
  setWordWrap(any([](const GridColumn &column) { return column.type == GridType::Memo; }));
  model_->SetColumns(std::move(columns));
  widths_->Apply();
}

void BoundGrid::RebindColumn(const QString &name, const QString &field, const QString &caption,
                             const QString &pattern) {
  model_->RebindColumn(name, field, caption, pattern);
  reading_.Prefetch();
  sorting_.ShowArrow();
}

void BoundGrid::ShowColumn(const QString &name, bool visible) {
  const int column = model_->ColumnByName(name);
  if (column >= 0) widths_->Show(column, visible);
}

void BoundGrid::SetRowLines(int lines) {
  rowLines_ = std::max(1, lines);
  ApplyFont();
}

void BoundGrid::ApplyFont() {
  const QFontMetrics metrics(font());
  const int margin = std::max(6, metrics.height() / 3);
  verticalHeader()->setDefaultSectionSize(metrics.height() + (rowLines_ - 1) * metrics.lineSpacing() + margin);
  verticalHeader()->setFixedWidth(metrics.horizontalAdvance(QStringLiteral("M")) + 12);
}

// ---- Current row and marked rows

QString BoundGrid::CurrentColumn() const {
  return currentIndex().isValid() ? model_->Columns()[currentIndex().column()].name : QString();
}

Value BoundGrid::CurrentField(const QString &field) const {
  return currentIndex().isValid() ? model_->FieldOf(currentIndex().row(), field) : Value();
}

bool BoundGrid::GoToKey(qint64 key, bool atTop) {
  if (!model_->IsOpen()) return false;
  const int row = model_->RowOfKey(key);
  if (row < 0) return false;
  const int column = currentIndex().column();
  const QModelIndex cell = model_->index(row, column < 0 || isColumnHidden(column) ? FirstColumn() : column);
  selection_->GoTo(cell);
  if (CurrentKey() != key) return false;
  scrollTo(cell, atTop ? QAbstractItemView::PositionAtTop : QAbstractItemView::EnsureVisible);
  return true;
}

void BoundGrid::MarkRows(const std::vector<qint64> &keys) {
  selection_->MarkKeys(keys);
  selection_->chosenByHand = true;
}

void BoundGrid::selectAll() {
  QTableView::selectAll();
  selection_->chosenByHand = true;
}

void BoundGrid::TellCurrentRow() {
  if (const std::optional<qint64> key = CurrentKey(); key != lastKey_ || !key) {
    lastKey_ = key;
    Q_EMIT CurrentRowChanged();
  }
}

void BoundGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  QTableView::currentChanged(current, previous);
  viewport()->update(visualRect(previous));
  if (current.row() != previous.row() || !current.isValid()) TellCurrentRow();
}

}  // namespace trimlog
