#pragma once

#include "core/data/schema.h"
#include "maker/tsv_table.h"

namespace trimlog {

/// Adds rows to one table of a file that is being made, all with the same columns.
class TableWriter {
 public:
  TableWriter(Database &database, const QString &table, const QStringList &columns);
  void Add(const Params &values);
  /// Adds a row of texts, each read as its column's type: dates ISO, numbers with a point, "" as Null.
  void AddTexts(const QStringList &texts);

 private:
  Database &database_;
  QString statement_;
  QList<ColumnType> types_;
};

/// Adds every row of a fact file whose columns are named as the table's are.
void CopyTable(Database &database, const QString &table, const TsvTable &facts);

}  // namespace trimlog
