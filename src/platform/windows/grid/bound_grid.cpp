#include "platform/windows/grid/bound_grid.h"

#include <QApplication>
#include <QHeaderView>
#include <algorithm>

#include "platform/windows/grid/cell_editors.h"
#include "platform/windows/grid/frozen_column.h"
#include "platform/windows/grid/grid_delegate.h"
#include "platform/windows/grid/grid_place.h"

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
  connect(model_, &GridModel::CellEdited, this, [this](int, const QString &column) { OnCellEdited(column); });
  connect(model_, &GridModel::RowStateChanged, this, [this] { leaving_.PlaceSentence(); });
  connect(model_, &QAbstractItemModel::modelReset, this, [this] { leaving_.PlaceSentence(); });
  readKeysLater_.setSingleShot(true);
  readKeysLater_.setInterval(0);
  connect(&readKeysLater_, &QTimer::timeout, this,
          [this] { RunGuarded(GridAction::Load, [this] { KeepingPlace([this] { model_->LoadAllKeys(); }); }); });
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
  connect(captions, &QHeaderView::sectionClicked, this, &BoundGrid::SortByClick);
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
  PrefetchVisible();
  ShowSortIndicator();
}

void BoundGrid::ShowColumn(const QString &name, bool visible) {
  const int column = model_->ColumnByName(name);
  if (column >= 0) widths_->Show(column, visible);
}

int BoundGrid::FirstColumn() const {
  const GridColumns &columns = model_->Columns();
  const auto first = std::find_if(columns.begin(), columns.end(),
                                  [](const GridColumn &column) { return column.visible && !column.field.isEmpty(); });
  return first == columns.end() ? 0 : static_cast<int>(first - columns.begin());
}

int BoundGrid::LastColumn() const {
  const GridColumns &columns = model_->Columns();
  const auto last = std::find_if(columns.rbegin(), columns.rend(),
                                 [](const GridColumn &column) { return column.visible && !column.field.isEmpty(); });
  return last == columns.rend() ? 0 : static_cast<int>(columns.rend() - last) - 1;
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

// ---- Rows

bool BoundGrid::RunGuarded(GridAction action, const std::function<void()> &work) {
  const GridHooks &hooks = model_->hooks;
  if (hooks.guard) {
    const bool done = hooks.guard(action, work);
    if (!done && action == GridAction::Save) model_->SetRowSentence(tr("This row could not be saved."));
    return done;
  }
  try {
    work();
    return true;
  } catch (const Error &error) {
    model_->SetRowSentence(error.Description());
    return false;
  }
}

bool BoundGrid::ShowRows(const std::function<void()> &open) {
  if (!CommitRow()) return false;
  const bool opened = RunGuarded(GridAction::Load, open);
  ShowSortIndicator();
  GoToFirstRow();
  return opened;
}

bool BoundGrid::Open(Database &database, const GridSource &source) {
  return ShowRows([&] { model_->Open(database, source); });
}

bool BoundGrid::SetSource(const GridSource &source, bool whole) {
  return ShowRows([&] { model_->SetSource(source, whole); });
}

void BoundGrid::KeepingPlace(const std::function<void()> &work) {
  const GridPlace place(*this);
  work();
  PrefetchVisible();
  place.Restore();
  PrefetchVisible();
  TellCurrentRow();
}

bool BoundGrid::HoldsOrder() const { return leaving_.IsUnderWay() || QApplication::mouseButtons() != Qt::NoButton; }

bool BoundGrid::Refresh() {
  return RunGuarded(GridAction::Load, [this] { KeepingPlace([this] { model_->Refresh(HoldsOrder()); }); });
}

bool BoundGrid::RefreshRows(const std::vector<qint64> &keys) {
  bool inPlace = false;
  const bool read = RunGuarded(GridAction::Load, [&] { inPlace = !keys.empty() && model_->RefreshRows(keys); });
  if (inPlace) PrefetchVisible();
  return read && (inPlace || Refresh());
}

void BoundGrid::GoToFirstRow() {
  PrefetchVisible();
  if (model_->rowCount() > 0) {
    selection_->GoTo(model_->index(0, FirstColumn()));
    scrollToTop();
  }
  TellCurrentRow();
}

void BoundGrid::PrefetchVisible() {
  if (!model_->IsOpen() || model_->RecordCount() == 0) return;
  const int first = std::max(0, rowAt(0));
  const int page = viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) + 1;
  try {
    model_->Need(first - page, first + 2 * page);
  } catch (const Error &) {
    return;  // the rows show empty; what the person does next meets the same failure and tells it
  }
}

// ---- Order

bool BoundGrid::SortBy(const QString &columnName, bool descending) {
  const int column = model_->ColumnByName(columnName);
  const QString field = column < 0 ? QString() : ShownField(model_->Columns()[column]);
  if (field.isEmpty() || !model_->IsOpen() || !CommitRow()) return false;
  GridSource source = model_->Source();
  source.order = {{field, descending}};
  const bool sorted = RunGuarded(GridAction::Load, [&] { KeepingPlace([&] { model_->SetSource(source, true); }); });
  ShowSortIndicator();
  if (currentIndex().isValid()) scrollTo(currentIndex());
  if (sorted) Q_EMIT Sorted();
  return sorted;
}

bool BoundGrid::SortsBy(const GridColumn &column) const {
  const GridSource &source = model_->Source();
  return !source.order.isEmpty() && !column.field.isEmpty() &&
         QualifiedField(source, ShownField(column)) == QualifiedField(source, source.order.first().field);
}

void BoundGrid::SortByClick(int section) {
  if (!canSort || section < 0) return;
  const GridColumn &column = model_->Columns()[section];
  const bool again = SortsBy(column) && !model_->Source().order.first().descending;
  if (!SortBy(column.name, again)) ShowSortIndicator();  // the click has moved the arrow
}

void BoundGrid::ShowSortIndicator() {
  const QList<GridOrder> &order = model_->Source().order;
  QHeaderView *const captions = horizontalHeader();
  int sorted = -1;
  for (int column = 0; canSort && sorted < 0 && column < model_->columnCount(); ++column) {
    if (SortsBy(model_->Columns()[column]) && model_->Columns()[column].visible) sorted = column;
  }
  captions->setSortIndicatorShown(sorted >= 0);
  if (sorted >= 0) {
    captions->setSortIndicator(sorted, order.first().descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  }
  if (frozen_) frozen_->Follow();
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
