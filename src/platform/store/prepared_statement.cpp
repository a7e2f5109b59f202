#include "platform/store/prepared_statement.h"

#include <sqlite3.h>

#include "platform/sql/sql_functions.h"
#include "platform/store/store_errors.h"
#include "platform/store/stored_value.h"

namespace trimlog {

PreparedStatement::PreparedStatement(sqlite3 *connection, const QString &sql) : connection_(connection) {
  const QByteArray utf8 = sql.toUtf8();
  const char *behind = nullptr;
  const int status = sqlite3_prepare_v3(connection, utf8.constData(), static_cast<int>(utf8.size()) + 1,
                                        SQLITE_PREPARE_PERSISTENT, &statement_, &behind);
  if (status != SQLITE_OK) throw StoreError(connection, status);
  if (statement_ == nullptr) throw Error(error_number::invalidSql, QStringLiteral("The statement is empty."));
  slots_ = sqlite3_bind_parameter_count(statement_);
  const int count = sqlite3_column_count(statement_);
  columns_.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) {
    ResultColumn column{QString::fromUtf8(sqlite3_column_name(statement_, i)), std::nullopt};
    if (const char *declared = sqlite3_column_decltype(statement_, i)) {
      if (const auto type = ParseDeclaredType(declared)) column.type = type->type;
    }
    columns_.push_back(std::move(column));
  }
}

PreparedStatement::~PreparedStatement() { sqlite3_finalize(statement_); }

void PreparedStatement::Finalize() { sqlite3_finalize(std::exchange(statement_, nullptr)); }

void PreparedStatement::NameTypes(const QHash<QString, ColumnType> &expressionTypes) {
  if (expressionTypes.isEmpty()) return;
  for (ResultColumn &column : columns_) {
    if (column.type) continue;
    const auto found = expressionTypes.constFind(column.name.toLower());
    if (found != expressionTypes.constEnd()) column.type = *found;
  }
}

void PreparedStatement::Bind(int index, const QVariant &value) {
  if (index > slots_) return;
  int status = SQLITE_OK;
  switch (value.typeId()) {
    case QMetaType::Int:
      status = sqlite3_bind_int(statement_, index, *static_cast<const int *>(value.constData()));
      break;
    case QMetaType::LongLong:
      status = sqlite3_bind_int64(statement_, index, *static_cast<const qint64 *>(value.constData()));
      break;
    case QMetaType::Double:
      status = sqlite3_bind_double(statement_, index, *static_cast<const double *>(value.constData()));
      break;
    case QMetaType::QString: {
      const QByteArray text = static_cast<const QString *>(value.constData())->toUtf8();
      status = sqlite3_bind_text64(statement_, index, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                                   SQLITE_TRANSIENT, SQLITE_UTF8);
      break;
    }
    default: {
      const QVariant bound = ToBound(value);
      if (bound.isValid()) return Bind(index, bound);
      status = sqlite3_bind_null(statement_, index);
    }
  }
  if (status != SQLITE_OK) throw StoreError(connection_, status);
}

bool PreparedStatement::Step(FunctionFailure &failure) {
  const int status = sqlite3_step(statement_);
  if (status == SQLITE_ROW) return true;
  if (status == SQLITE_DONE) return false;
  const Error error = failure.error ? *failure.error : StoreError(connection_, status);
  failure.error.reset();
  sqlite3_reset(statement_);
  throw error;
}

void PreparedStatement::Reset() { sqlite3_reset(statement_); }

QVariant PreparedStatement::Stored(int column) const {
  switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
      return qint64{sqlite3_column_int64(statement_, column)};
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement_, column);
    case SQLITE_NULL:
      return {};
    default:
      break;
  }
  const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement_, column));
  return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
}

QVariant PreparedStatement::Value(int column) const {
  QVariant stored = Stored(column);
  const std::optional<ColumnType> type = columns_[static_cast<size_t>(column)].type;
  // Most fields are texts, and a text column's text needs nothing more.
  const bool text = type == ColumnType::Text || type == ColumnType::Memo;
  if (text && stored.typeId() == QMetaType::QString) return stored;
  return FromStored(stored, type);
}

bool PreparedStatement::IsReadOnly() const { return sqlite3_stmt_readonly(statement_) != 0; }

}  // namespace trimlog
