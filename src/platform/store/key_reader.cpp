#include "platform/store/key_reader.h"

#include <sqlite3.h>

#include "platform/store/database_internals.h"

namespace trimlog {

std::vector<qint64> ReadKeys(Database &database, const QString &sql, const Params &params) {
  Database::Impl &store = database.Internals();
  const auto known = store.Know(sql);
  Database::Impl::CheckParameters(*known, params);
  store.CheckTransaction();
  ++store.counts.statements;
  const StatementUse statement = store.Use(*known->form);
  store.Bind(*statement, *known, params);
  std::vector<qint64> keys;
  while (statement->Step(store.failure)) keys.push_back(sqlite3_column_int64(statement->Handle(), 0));
  store.counts.rowsRead += static_cast<qint64>(keys.size());
  return keys;
}

}  // namespace trimlog
