#pragma once

#include <QStringList>
#include <QVariantMap>
#include <optional>

#include "platform/grid/grid_keys.h"
#include "platform/grid/grid_source.h"
#include "platform/grid/row_cache.h"

namespace trimlog {

/// The rows of a source: their keys in order, and the values of those that were seen. Knows nothing of columns, of what
/// is being changed or of a view. What fails is thrown as an Error.
class GridRows {
 public:
  /// A source with its keys, read and not yet shown.
  struct Reading {
    Database *database = nullptr;
    GridSource source;
    GridKeys keys;
  };
  enum class Extent { FirstPage, Whole, WholeInOldOrder };
  Reading Read(Database &database, const GridSource &source, Extent extent) const;
  void Take(Reading reading);
  void SetFields(const QStringList &fields);  ///< those that are read with every row

  bool IsOpen() const { return database_ != nullptr; }
  Database &File() const { return *database_; }
  const GridSource &Source() const { return source_; }
  GridKeys &Keys() { return keys_; }

  int Count() const { return keys_.Count(); }
  std::optional<qint64> KeyOf(int row);
  std::vector<int> RowsOf(std::vector<qint64> keys);  ///< ascending
  void Need(int first, int last);                     ///< reads a range, so that it is there when it is asked for
  void Forget(qint64 key) { cache_.Forget(key); }
  /// A field of a row as it stands in the file; invalid when row or field is not there.
  Value Field(int row, const QString &field);
  QList<QVariantMap> Whole(const std::vector<qint64> &keys) const;
  /// The first row that meets a criterion in the words of the source; -1 for none.
  int FindFirst(const QString &criterion, const Params &params);
  /// True when each of the keys is shown exactly if its row belongs to the source now.
  bool StandAsShown(const std::vector<qint64> &keys);

 private:
  const GridRow *Fetched(int row);  ///< good until the next row is fetched
  std::vector<GridRow> Fetch(const std::vector<qint64> &keys) const;

  Database *database_ = nullptr;
  GridSource source_;
  QStringList fields_;  ///< in the order of a fetched row
  GridKeys keys_;
  RowCache cache_;
};

}  // namespace trimlog
