#include "core/windows/controls/grid_follow.h"

#include "core/session/change.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

const QString dayField = QStringLiteral("ThisDate");

/// The one day that a changed row stands on, before as after; none for rows of no day, or of two.
QDate DayOf(const GridRowEdit &row) {
  const QDate day = row.Get(dayField).toDate();
  return row.IsNew() || row.StoredValue(dayField).toDate() == day ? day : QDate();
}

/// The one day that all of these rows, which the grid still holds, stand on.
QDate DayOf(const BoundGrid &grid, const std::vector<qint64> &keys) {
  QDate day;
  for (const qint64 key : keys) {
    const QDate found = grid.Model().FieldOf(grid.Model().RowOfKey(key), dayField).toDate();
    if (!found.isValid() || (day.isValid() && found != day)) return {};
    day = found;
  }
  return day;
}

}  // namespace

void FollowTable(BoundGrid &grid, Session &session, Table table) {
  GridHooks &hooks = grid.Hooks();
  hooks.withUpdate = [&grid, &session, table, own = hooks.withUpdate](const GridRowEdit &row, qint64 key) {
    if (own) own(row, key);
    AnnounceAfterCommit(session, {.table = table, .keys = {key}, .date = DayOf(row), .origin = &grid});
  };
  hooks.withDelete = [&grid, &session, table, own = hooks.withDelete](const std::vector<qint64> &keys) {
    if (own) own(keys);
    AnnounceAfterCommit(session, {.table = table, .keys = keys, .date = DayOf(grid, keys), .origin = &grid});
  };
  QObject::connect(&session.changes, &DataChanges::Changed, &grid, [&grid, table](const DataChange &change) {
    if (change.table == table && change.origin != &grid) grid.RefreshRows(change.keys);
  });
}

}  // namespace trimlog
