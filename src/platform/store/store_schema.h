#pragma once

#include <QSet>
#include <memory>
#include <optional>
#include <unordered_map>

#include "platform/sql/sql_translator.h"

struct sqlite3;

namespace trimlog {

/// The tables and columns of an open file, read when first asked for and kept until the structure changes.
class StoreSchema {
 public:
  explicit StoreSchema(sqlite3 *connection) : connection_(connection) {}
  /// `schema` is the name of a side file, or empty for the main file. nullptr when there is no such table.
  const StoredTable *Find(const QString &schema, const QString &table);
  bool IsBooleanColumn(QStringView name);
  void Forget();

 private:
  std::unique_ptr<StoredTable> Read(const QString &schema, const QString &table) const;

  sqlite3 *connection_;
  std::unordered_map<QString, std::unique_ptr<StoredTable>> tables_;
  std::optional<QSet<QString>> booleans_;  ///< lower-case names, of all tables
};

}  // namespace trimlog
