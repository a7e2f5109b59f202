#include "platform/windows/grid/grid_widths.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

GridWidths::GridWidths(BoundGrid &grid) : QObject(&grid), grid_(grid) {
  saveLater_.setSingleShot(true);
  saveLater_.setInterval(500);
  connect(&saveLater_, &QTimer::timeout, this, &GridWidths::Save);
  connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) { Resized(column); });
}

GridWidths::~GridWidths() = default;

void GridWidths::SaveNow() {
  if (saveLater_.isActive()) Save();
}

void GridWidths::Keep(SettingsStore &store, const QString &key) {
  store_ = &store;
  key_ = key;
  Apply();
}

void GridWidths::GiveRoom(const QString &from, const QString &to) {
  roomFrom_ = from;
  roomTo_ = to;
  Apply();
}

void GridWidths::SetSpare(const QString &column) {
  spare_ = column;
  FillSpare();
}

int GridWidths::ColumnOf(const QString &name) const { return name.isEmpty() ? -1 : grid_.Model().ColumnByName(name); }

int GridWidths::RoomGivenTo(const GridColumn &column) const {
  const int giver = column.name == roomTo_ ? ColumnOf(roomFrom_) : -1;
  const int room = giver < 0 || grid_.Model().Columns()[giver].visible ? 0 : OwnWidth(grid_.Model().Columns()[giver]);
  return room + (column.name == spare_ ? spareGiven_ : 0);
}

int GridWidths::OwnWidth(const GridColumn &column) const {
  const int kept = store_ ? store_->GetSettingLong(key_, column.name, 0) : 0;
  if (kept > 0) return kept;
  const QFontMetrics metrics(grid_.font());
  int width = metrics.averageCharWidth() * column.width + 10;
  for (const QString &line : column.caption.split(QLatin1Char('\n'))) {
    width = std::max(width, metrics.horizontalAdvance(line) + 22);  // room for the sort arrow
  }
  return width;
}

void GridWidths::Apply() {
  {
    const QScopedValueRollback<bool> applying(applying_, true);
    spareGiven_ = 0;
    bool leading = true;  // before the first column with data the row heads are empty enough
    for (size_t column = 0; column < grid_.Model().Columns().size(); ++column) {
      const GridColumn &shown = grid_.Model().Columns()[column];
      leading = leading && shown.field.isEmpty() && shown.caption.isEmpty();
      grid_.setColumnHidden(static_cast<int>(column), !shown.visible || leading);
      grid_.setColumnWidth(static_cast<int>(column), OwnWidth(shown) + RoomGivenTo(shown));
    }
  }
  FillSpare();
}

void GridWidths::FillSpare() {
  const int column = ColumnOf(spare_);
  if (column < 0 || applying_) return;
  const QScopedValueRollback<bool> applying(applying_, true);
  const int others = grid_.horizontalHeader()->length() - spareGiven_;
  const int given = std::max(0, grid_.viewport()->width() - others);
  if (given == spareGiven_) return;
  const int width = grid_.columnWidth(column) - spareGiven_ + given;
  spareGiven_ = given;
  grid_.setColumnWidth(column, width);
}

void GridWidths::Show(int column, bool visible) {
  const int taker = grid_.Model().Columns()[column].name == roomFrom_ ? ColumnOf(roomTo_) : -1;
  const int before = taker < 0 ? 0 : RoomGivenTo(grid_.Model().Columns()[taker]);
  grid_.Model().SetColumnVisible(grid_.Model().Columns()[column].name, visible);
  {
    const QScopedValueRollback<bool> applying(applying_, true);
    grid_.setColumnHidden(column, !visible);
    if (taker >= 0) {
      grid_.setColumnWidth(taker, grid_.columnWidth(taker) - before + RoomGivenTo(grid_.Model().Columns()[taker]));
    }
  }
  FillSpare();
}

// What the person does to the spare column itself is its own width from now on; the others leave it more or less.
void GridWidths::Resized(int column) {
  if (applying_) return;
  if (column == ColumnOf(spare_)) spareGiven_ = 0;
  if (store_) saveLater_.start();
  if (column != ColumnOf(spare_)) FillSpare();
}

void GridWidths::Save() {
  saveLater_.stop();
  for (size_t column = 0; store_ && column < grid_.Model().Columns().size(); ++column) {
    const GridColumn &shown = grid_.Model().Columns()[column];
    const int width = grid_.columnWidth(static_cast<int>(column)) - RoomGivenTo(shown);
    if (width > 0 && width != OwnWidth(shown)) store_->SaveSettingLong(key_, shown.name, width);
  }
}

}  // namespace trimlog
