#include "platform/windows/grid/bound_grid.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/windows/grid/grid_delegate.h"
#include "platform/windows/grid/grid_selection.h"

namespace trimlog {

// What is kept by key while the rows are read afresh.
struct BoundGrid::Place {
  std::optional<qint64> key;
  int row = -1;
  int column = -1;
  bool onNewRow = false;
  bool rowChosen = false;
  std::optional<qint64> topKey;
  std::vector<qint64> marked;
};

BoundGrid::BoundGrid(const QString &objectName, const QString &label, const QLocale &locale, QWidget *parent)
    : QTableView(parent), model_(new GridModel(locale, this)) {
  setObjectName(objectName);
  setAccessibleName(label);
  setModel(model_);
  QItemSelectionModel *const old = selectionModel();
  setSelectionModel(new GridSelection(this));
  delete old;
  setItemDelegate(new GridDelegate(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setCornerButtonEnabled(false);

  QHeaderView *const captions = horizontalHeader();
  captions->setHighlightSections(false);
  captions->setSectionsClickable(true);
  captions->setMinimumSectionSize(16);
  disconnect(captions, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
  disconnect(captions, SIGNAL(sectionEntered(int)), this, SLOT(_q_selectColumn(int)));
  connect(captions, &QHeaderView::sectionClicked, this, &BoundGrid::SortByClick);
  connect(captions, &QHeaderView::sectionResized, this, [this] {
    if (!applyingWidths_ && store_) saveWidthsLater_.start();
  });
  disconnect(verticalHeader(), SIGNAL(sectionPressed(int)), this, SLOT(selectRow(int)));
  connect(verticalHeader(), &QHeaderView::sectionPressed, this, &BoundGrid::ChooseRow);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setHighlightSections(true);
  ApplyFont();

  saveWidthsLater_.setSingleShot(true);
  saveWidthsLater_.setInterval(500);
  connect(&saveWidthsLater_, &QTimer::timeout, this, &BoundGrid::SaveWidths);
  readKeysLater_.setSingleShot(true);
  readKeysLater_.setInterval(0);
  connect(&readKeysLater_, &QTimer::timeout, this,
          [this] { RunGuarded(GridAction::Load, [this] { KeepingPlace([this] { model_->LoadAllKeys(); }); }); });
}

BoundGrid::~BoundGrid() {
  if (saveWidthsLater_.isActive()) SaveWidths();
}

void BoundGrid::ApplyFont() {
  const QFontMetrics metrics(font());
  verticalHeader()->setDefaultSectionSize(metrics.height() + std::max(6, metrics.height() / 3));
  verticalHeader()->setFixedWidth(metrics.horizontalAdvance(QStringLiteral("M")) + 12);
}

// ---- Columns

void BoundGrid::SetColumns(GridColumns columns) {
  const bool editable =
      std::any_of(columns.begin(), columns.end(), [](const GridColumn &column) { return column.editable; });
  setTabKeyNavigation(editable);
  model_->SetColumns(std::move(columns));
  ApplyWidths();
}

void BoundGrid::RebindColumn(const QString &name, const QString &field, const QString &caption,
                             const QString &pattern) {
  model_->RebindColumn(name, field, caption, pattern);
  PrefetchVisible();
  ShowSortIndicator();
}

void BoundGrid::ShowColumn(const QString &name, bool visible) {
  const int column = model_->ColumnByName(name);
  if (column < 0) return;
  const int taker = name == roomFrom_ ? model_->ColumnByName(roomTo_) : -1;
  const int before = taker < 0 ? 0 : RoomGivenTo(model_->Columns()[taker]);
  model_->SetColumnVisible(name, visible);
  applyingWidths_ = true;
  setColumnHidden(column, !visible);
  if (taker >= 0) setColumnWidth(taker, columnWidth(taker) - before + RoomGivenTo(model_->Columns()[taker]));
  applyingWidths_ = false;
}

void BoundGrid::GiveRoom(const QString &from, const QString &to) {
  roomFrom_ = from;
  roomTo_ = to;
  ApplyWidths();
}

int BoundGrid::RoomGivenTo(const GridColumn &column) const {
  const int giver = column.name == roomTo_ ? model_->ColumnByName(roomFrom_) : -1;
  return giver < 0 || model_->Columns()[giver].visible ? 0 : WidthOf(model_->Columns()[giver]);
}

void BoundGrid::KeepWidths(SettingsStore &store, const QString &key) {
  store_ = &store;
  widthsKey_ = key;
  ApplyWidths();
}

int BoundGrid::WidthOf(const GridColumn &column) const {
  const int kept = store_ ? store_->GetSettingLong(widthsKey_, column.name, 0) : 0;
  if (kept > 0) return kept;
  const QFontMetrics metrics(font());
  int width = metrics.averageCharWidth() * column.width + 10;
  for (const QString &line : column.caption.split(QLatin1Char('\n'))) {
    width = std::max(width, metrics.horizontalAdvance(line) + 22);  // room for the sort arrow
  }
  return width;
}

void BoundGrid::ApplyWidths() {
  applyingWidths_ = true;
  for (size_t column = 0; column < model_->Columns().size(); ++column) {
    const GridColumn &shown = model_->Columns()[column];
    setColumnHidden(static_cast<int>(column), !shown.visible);
    setColumnWidth(static_cast<int>(column), WidthOf(shown) + RoomGivenTo(shown));
  }
  applyingWidths_ = false;
}

void BoundGrid::SaveWidths() {
  saveWidthsLater_.stop();
  for (size_t column = 0; store_ && column < model_->Columns().size(); ++column) {
    const GridColumn &shown = model_->Columns()[column];
    const int width = columnWidth(static_cast<int>(column)) - RoomGivenTo(shown);
    if (width > 0 && width != WidthOf(shown)) store_->SaveSettingLong(widthsKey_, shown.name, width);
  }
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

bool BoundGrid::Open(Database &database, const GridSource &source) {
  if (!CommitRow()) return false;
  const bool opened = RunGuarded(GridAction::Load, [&] { model_->Open(database, source); });
  ShowSortIndicator();
  GoToFirstRow();
  return opened;
}

bool BoundGrid::SetSource(const GridSource &source, bool whole) {
  if (!CommitRow()) return false;
  const bool opened = RunGuarded(GridAction::Load, [&] { model_->SetSource(source, whole); });
  ShowSortIndicator();
  GoToFirstRow();
  return opened;
}

bool BoundGrid::Refresh() {
  return RunGuarded(GridAction::Load, [this] { KeepingPlace([this] { model_->Refresh(HoldsOrder()); }); });
}

bool BoundGrid::RefreshRows(const std::vector<qint64> &keys) {
  bool inPlace = false;
  const bool read = RunGuarded(GridAction::Load, [&] { inPlace = !keys.empty() && model_->RefreshRows(keys); });
  if (inPlace) PrefetchVisible();
  return read && (inPlace || Refresh());
}

bool BoundGrid::HoldsOrder() const { return committing_ || QApplication::mouseButtons() != Qt::NoButton; }

// The cell that a person would begin with: the first that shows something.
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

void BoundGrid::GoToFirstRow() {
  PrefetchVisible();
  if (model_->rowCount() > 0) {
    selectionModel()->setCurrentIndex(model_->index(0, FirstColumn()),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollToTop();
  }
  TellCurrentRow();
}

bool BoundGrid::SortBy(const QString &columnName, bool descending) {
  const int column = model_->ColumnByName(columnName);
  if (column < 0 || model_->Columns()[column].field.isEmpty() || !model_->IsOpen() || !CommitRow()) return false;
  GridSource source = model_->Source();
  source.order = {{model_->Columns()[column].field, descending}};
  const bool sorted = RunGuarded(GridAction::Load, [&] { KeepingPlace([&] { model_->SetSource(source, true); }); });
  ShowSortIndicator();
  if (currentIndex().isValid()) scrollTo(currentIndex());
  if (sorted) Q_EMIT Sorted();
  return sorted;
}

bool BoundGrid::SortsBy(const GridColumn &column) const {
  const GridSource &source = model_->Source();
  return !source.order.isEmpty() && !column.field.isEmpty() &&
         QualifiedField(source, column.field) == QualifiedField(source, source.order.first().field);
}

void BoundGrid::SortByClick(int section) {
  if (!canSort || section < 0) return;
  const QList<GridOrder> &order = model_->Source().order;
  const GridColumn &column = model_->Columns()[section];
  const bool again = SortsBy(column) && !order.first().descending;
  if (!SortBy(column.name, again)) ShowSortIndicator();  // the click has moved the arrow
}

void BoundGrid::ShowSortIndicator() {
  const QList<GridOrder> &order = model_->Source().order;
  QHeaderView *const captions = horizontalHeader();
  for (size_t column = 0; canSort && !order.isEmpty() && column < model_->Columns().size(); ++column) {
    if (!SortsBy(model_->Columns()[column]) || !model_->Columns()[column].visible) continue;
    captions->setSortIndicatorShown(true);
    captions->setSortIndicator(static_cast<int>(column),
                               order.first().descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    return;
  }
  captions->setSortIndicatorShown(false);
}

// ---- The place kept while rows are read afresh

BoundGrid::Place BoundGrid::TakePlace() const {
  Place place;
  const QModelIndex current = currentIndex();
  place.key = CurrentKey();
  place.row = current.row();
  place.column = current.column();
  place.onNewRow = current.isValid() && !place.key;
  place.topKey = model_->KeyOfRow(rowAt(0));
  place.marked = MarkedKeys();
  place.rowChosen = rowChosen_;
  return place;
}

void BoundGrid::KeepingPlace(const std::function<void()> &work) {
  const Place place = TakePlace();
  work();
  RestorePlace(place);
}

void BoundGrid::RestorePlace(const Place &place) {
  PrefetchVisible();
  if (place.topKey) {
    const int top = model_->RowOfKey(*place.topKey);
    if (top > 0) verticalScrollBar()->setValue(top);
  }
  SelectRows(place.marked);
  const int rows = model_->rowCount();
  int row = place.key ? model_->RowOfKey(*place.key) : -1;
  if (row < 0) row = place.onNewRow ? rows - 1 : std::min(place.row, model_->RecordCount() - 1);
  if (row >= 0) {
    const bool markIt = selectionModel()->selection().isEmpty() && !place.marked.empty();
    selectionModel()->setCurrentIndex(
        model_->index(row, std::clamp(place.column, 0, model_->columnCount() - 1)),
        markIt ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate);
  }
  rowChosen_ = place.rowChosen;
  PrefetchVisible();
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

// ---- Current row and marked rows

std::optional<qint64> BoundGrid::CurrentKey() const { return model_->KeyOfRow(currentIndex().row()); }

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
  selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (CurrentKey() != key) return false;
  scrollTo(cell, atTop ? QAbstractItemView::PositionAtTop : QAbstractItemView::EnsureVisible);
  return true;
}

std::vector<int> BoundGrid::MarkedRowNumbers() const {
  std::vector<int> rows;
  for (const QItemSelectionRange &range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

std::vector<qint64> BoundGrid::MarkedKeys() const {
  std::vector<qint64> keys;
  for (const int row : MarkedRowNumbers()) {
    if (const std::optional<qint64> key = model_->KeyOfRow(row)) keys.push_back(*key);
  }
  return keys;
}

void BoundGrid::MarkRows(const std::vector<qint64> &keys) {
  SelectRows(keys);
  rowChosen_ = true;
}

void BoundGrid::SelectRows(const std::vector<qint64> &keys) {
  const std::vector<int> rows = model_->RowsOfKeys(keys);
  const int lastColumn = model_->columnCount() - 1;
  QItemSelection selection;
  for (size_t first = 0; first < rows.size();) {
    size_t last = first;
    while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
    selection.append(QItemSelectionRange(model_->index(rows[first], 0), model_->index(rows[last], lastColumn)));
    first = last + 1;
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void BoundGrid::ClearMarks() { selectionModel()->clearSelection(); }

bool BoundGrid::RowsMarked() const {
  const QItemSelection selection = selectionModel()->selection();
  if (selection.isEmpty()) return false;
  return rowChosen_ || selection.size() > 1 || selection.first().height() > 1;
}

void BoundGrid::TellCurrentRow() {
  if (const std::optional<qint64> key = CurrentKey(); key != lastKey_ || !key) {
    lastKey_ = key;
    Q_EMIT CurrentRowChanged();
  }
}

void BoundGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  QTableView::currentChanged(current, previous);
  rowChosen_ = false;
  if (!extending_) anchorKey_ = CurrentKey();
  viewport()->update(visualRect(previous));
  if (current.row() != previous.row() || !current.isValid()) TellCurrentRow();
}

// ---- Layout events

void BoundGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dy != 0) PrefetchVisible();
}

void BoundGrid::resizeEvent(QResizeEvent *event) {
  QTableView::resizeEvent(event);
  PrefetchVisible();
}

void BoundGrid::showEvent(QShowEvent *event) {
  QTableView::showEvent(event);
  PrefetchVisible();
}

void BoundGrid::hideEvent(QHideEvent *event) {
  if (saveWidthsLater_.isActive()) SaveWidths();
  QTableView::hideEvent(event);
}

void BoundGrid::changeEvent(QEvent *event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  ApplyFont();
  ApplyWidths();
}

// The keys behind the first page are read once that page stands on the screen.
void BoundGrid::paintEvent(QPaintEvent *event) {
  QTableView::paintEvent(event);
  if (model_->IsOpen() && !model_->AllKeysLoaded()) readKeysLater_.start();
  if (model_->rowCount() == 0 && !placeholderText_.isEmpty()) DrawPlaceholder();
}

void BoundGrid::SetPlaceholderText(const QString &text) {
  placeholderText_ = text;
  setAccessibleDescription(text);
  viewport()->update();
}

void BoundGrid::DrawPlaceholder() {
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  const int margin = fontMetrics().height();
  painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, placeholderText_);
}

}  // namespace trimlog
