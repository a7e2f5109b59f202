#include "platform/windows/grid/grid_reading.h"

#include <QApplication>
#include <QHeaderView>
#include <algorithm>

#include "platform/grid/grid_guard.h"
#include "platform/windows/grid/bound_grid.h"
#include "platform/windows/grid/grid_place.h"

namespace trimlog {

GridReading::GridReading(BoundGrid &grid) : grid_(grid) {
  restLater_.setSingleShot(true);
  restLater_.setInterval(0);
  restLater_.callOnTimeout([this] {
    GridModel &model = grid_.Model();
    RunGuarded(model, GridAction::Load, [&] { KeepingPlace([&] { model.LoadAllKeys(); }); });
  });
}

bool GridReading::Show(const std::function<void()> &open) {
  if (!grid_.CommitRow()) return false;
  const bool opened = RunGuarded(grid_.Model(), GridAction::Load, open);
  grid_.Sorting().ShowArrow();
  GoToFirstRow();
  return opened;
}

void GridReading::GoToFirstRow() {
  Prefetch();
  if (grid_.Model().rowCount() > 0) {
    grid_.Selection().GoTo(grid_.Model().index(0, grid_.FirstColumn()));
    grid_.scrollToTop();
  }
  grid_.TellCurrentRow();
}

void GridReading::KeepingPlace(const std::function<void()> &work) {
  const GridPlace place(grid_);
  work();
  Prefetch();
  place.Restore();
  Prefetch();
  grid_.TellCurrentRow();
}

// What the person points at must not move away.
bool GridReading::HoldsOrder() const { return grid_.IsLeavingRow() || QApplication::mouseButtons() != Qt::NoButton; }

bool GridReading::Refresh() {
  GridModel &model = grid_.Model();
  return RunGuarded(model, GridAction::Load, [&] { KeepingPlace([&] { model.Refresh(HoldsOrder()); }); });
}

bool GridReading::RefreshRows(const std::vector<qint64> &keys) {
  GridModel &model = grid_.Model();
  bool inPlace = false;
  const bool read = RunGuarded(model, GridAction::Load, [&] { inPlace = !keys.empty() && model.RefreshRows(keys); });
  if (inPlace) Prefetch();
  return read && (inPlace || Refresh());
}

void GridReading::Prefetch() {
  GridModel &model = grid_.Model();
  if (!model.IsOpen() || model.RecordCount() == 0) return;
  const int first = std::max(0, grid_.rowAt(0));
  const int page = grid_.viewport()->height() / std::max(1, grid_.verticalHeader()->defaultSectionSize()) + 1;
  try {
    model.Need(first - page, first + 2 * page);
  } catch (const Error &) {
    return;  // the rows show empty; what the person does next meets the same failure and tells it
  }
}

void GridReading::ReadTheRestSoon() {
  if (grid_.Model().IsOpen() && !grid_.Model().AllKeysLoaded()) restLater_.start();
}

}  // namespace trimlog
