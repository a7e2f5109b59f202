#include "core/windows/controls/grid_follow.h"

#include "core/session/change.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

void AnnounceFrom(BoundGrid &grid, Session &session, Table table, const std::vector<qint64> &keys) {
  Change change(session, &grid);
  change.Announce({.table = table, .keys = keys});
  change.Commit();
}

}  // namespace

void FollowTable(BoundGrid &grid, Session &session, Table table) {
  GridHooks &hooks = grid.Hooks();
  hooks.withUpdate = [&grid, &session, table, own = hooks.withUpdate](const GridRowEdit &row, qint64 key) {
    if (own) own(row, key);
    AnnounceFrom(grid, session, table, {key});
  };
  hooks.withDelete = [&grid, &session, table, own = hooks.withDelete](const std::vector<qint64> &keys) {
    if (own) own(keys);
    AnnounceFrom(grid, session, table, keys);
  };
  QObject::connect(&session.changes, &DataChanges::Changed, &grid, [&grid, table](const DataChange &change) {
    if (change.table == table && change.origin != &grid) grid.RefreshRows(change.keys);
  });
}

}  // namespace trimlog
