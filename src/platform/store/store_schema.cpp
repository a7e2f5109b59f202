#include "platform/store/store_schema.h"

#include "platform/sql/sql_functions.h"
#include "platform/store/prepared_statement.h"

namespace trimlog {

const StoredTable *StoreSchema::Find(const QString &schema, const QString &table) {
  const QString key = schema + QLatin1Char('.') + table.toLower();
  const auto found = tables_.find(key);
  if (found != tables_.end()) return found->second.get();
  std::unique_ptr<StoredTable> read = Read(schema, table);
  if (read == nullptr) return nullptr;
  return tables_.emplace(key, std::move(read)).first->second.get();
}

bool StoreSchema::IsBooleanColumn(QStringView name) {
  if (!booleans_) {
    FunctionFailure none;
    booleans_.emplace();
    PreparedStatement columns(
        connection_,
        QStringLiteral("SELECT c.name, c.type FROM main.sqlite_schema AS t, pragma_table_info(t.name) AS c "
                       "WHERE t.type = 'table' AND c.type LIKE 'B*'"));
    while (columns.Step(none)) {
      const auto declared = ParseDeclaredType(columns.Stored(1).toString().toUtf8());
      if (declared && declared->type == ColumnType::Boolean) booleans_->insert(columns.Stored(0).toString().toLower());
    }
  }
  return booleans_->contains(name.toString().toLower());
}

void StoreSchema::Forget() {
  tables_.clear();
  booleans_.reset();
}

std::unique_ptr<StoredTable> StoreSchema::Read(const QString &schema, const QString &table) const {
  FunctionFailure none;
  const QString place = schema.isEmpty() ? QStringLiteral("main") : schema;
  auto read = std::make_unique<StoredTable>();
  PreparedStatement master(connection_,
                           QStringLiteral("SELECT name, type FROM [%1].sqlite_schema WHERE type IN ('table', 'view') "
                                          "AND name = ?1 COLLATE NOCASE")
                               .arg(place));
  master.Bind(1, table);
  if (!master.Step(none)) return nullptr;
  read->name = master.Stored(0).toString();
  read->isView = master.Stored(1).toString() == QLatin1StringView("view");
  PreparedStatement columns(connection_, QStringLiteral("SELECT name, type FROM pragma_table_info(?1, ?2)"));
  columns.Bind(1, read->name);
  columns.Bind(2, place);
  while (columns.Step(none)) {
    read->columns.push_back({columns.Stored(0).toString(), ParseDeclaredType(columns.Stored(1).toString().toUtf8())});
  }
  return read;
}

}  // namespace trimlog
