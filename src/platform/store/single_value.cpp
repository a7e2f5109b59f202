#include "platform/store/single_value.h"

#include "platform/store/database_internals.h"
#include "platform/store/stored_value.h"

namespace trimlog {

namespace {

int ColumnOf(const PreparedStatement &statement, const QString &field) {
  if (field.isEmpty()) return 0;
  const auto &columns = statement.Columns();
  for (size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].name.compare(field, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
  }
  throw Error(error_number::unknownColumn, QStringLiteral("The statement gives no field '%1'.").arg(field));
}

}  // namespace

QString SingleValueText(Database &database, const QString &sql, const Params &params, const QString &field) {
  Database::Impl &store = database.Internals();
  const auto known = store.Know(sql);
  if (known->form->translated.kind != TranslatedSql::Kind::Select) {
    throw Error(error_number::invalidSql,
                QStringLiteral("A value is read by a SELECT, not by '%1'.").arg(sql.left(40)));
  }
  store.CheckTransaction();
  ++store.counts.statements;
  StatementUse use = store.Use(*known->form);
  store.Bind(*use, *known, params);
  const int column = ColumnOf(*use, field);
  if (!use->Step(store.failure)) return {};
  ++store.counts.rowsRead;
  return ValueText(use->Value(column));
}

}  // namespace trimlog
