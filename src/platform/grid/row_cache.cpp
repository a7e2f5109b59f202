#include "platform/grid/row_cache.h"

#include <QSet>

#include "platform/grid/grid_blocks.h"

namespace trimlog {

void RowCache::Need(const std::vector<qint64> &keys, const Fetch &fetch) {
  std::vector<qint64> missing;
  for (const qint64 key : keys) {
    if (!rows_.contains(key)) missing.push_back(key);
  }
  InBlocks(missing, block, [&](const std::vector<qint64> &wanted) {
    QSet<qint64> gone(wanted.begin(), wanted.end());
    for (GridRow &row : fetch(wanted)) {
      gone.remove(row.key);
      const qint64 key = row.key;
      rows_.insert(key, new GridRow(std::move(row)));
    }
    for (const qint64 key : std::as_const(gone)) rows_.insert(key, new GridRow{key, {}});
  });
}

}  // namespace trimlog
