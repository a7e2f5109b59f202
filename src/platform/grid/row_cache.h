#pragma once

#include <QCache>
#include <QVariant>
#include <functional>
#include <vector>

namespace trimlog {

/// One fetched row: its key and the values of the fetched fields.
struct GridRow {
  qint64 key = 0;
  std::vector<QVariant> values;  ///< empty: the row is not in the file any more
};

/// The rows that were seen, by key. Rows are fetched in blocks around what is asked for; the least recently seen are
/// forgotten beyond `capacity`.
class RowCache {
 public:
  using Fetch = std::function<std::vector<GridRow>(const std::vector<qint64> &keys)>;

  static constexpr int block = 64;  ///< rows per statement

  explicit RowCache(int capacity = 8192) : rows_(capacity) {}
  /// Reads those of the keys that are not here yet, in whole blocks.
  void Need(const std::vector<qint64> &keys, const Fetch &fetch);
  bool Contains(qint64 key) const { return rows_.contains(key); }
  /// The row of a key that was needed before; nullptr when it is not here.
  const GridRow *Find(qint64 key) { return rows_.object(key); }
  void Forget(qint64 key) { rows_.remove(key); }
  void Clear() { rows_.clear(); }
  int Size() const { return static_cast<int>(rows_.size()); }

 private:
  QCache<qint64, GridRow> rows_;
};

}  // namespace trimlog
