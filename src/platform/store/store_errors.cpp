#include "platform/store/store_errors.h"

#include <sqlite3.h>

namespace trimlog {

namespace {

Error ConstraintError(int extended, const QString &detail) {
  switch (extended) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return {error_number::duplicateKey,
              QStringLiteral("The change would create a second row with the same key (%1).").arg(detail)};
    case SQLITE_CONSTRAINT_FOREIGNKEY:
      return {error_number::relation,
              QStringLiteral("The change breaks a relation: a row that it refers to does not exist.")};
    case SQLITE_CONSTRAINT_NOTNULL:
      return {error_number::requiredValue, QStringLiteral("A required value is missing (%1).").arg(detail)};
    default:
      return {error_number::other, QStringLiteral("The change breaks a rule of the data file (%1).").arg(detail)};
  }
}

Error SyntaxError(const QString &message) {
  const auto behind = [&message](const QString &start) { return message.mid(start.size()); };
  const QString table = QStringLiteral("no such table: "), column = QStringLiteral("no such column: ");
  if (message.startsWith(table)) {
    return {error_number::unknownTable, QStringLiteral("The store cannot find the table '%1'.").arg(behind(table))};
  }
  if (message.startsWith(column)) {
    return {error_number::unknownColumn,
            QStringLiteral("The statement names an unknown field '%1'.").arg(behind(column))};
  }
  return {error_number::invalidSql, QStringLiteral("The statement is not understood: %1.").arg(message)};
}

}  // namespace

Error StoreError(sqlite3 *connection, int status) {
  const int extended = connection != nullptr ? sqlite3_extended_errcode(connection) : status;
  const QString message =
      QString::fromUtf8(connection != nullptr ? sqlite3_errmsg(connection) : sqlite3_errstr(status));
  switch (status & 0xff) {
    case SQLITE_ERROR:
      return SyntaxError(message);
    case SQLITE_CONSTRAINT:
      return ConstraintError(extended, message.section(QStringLiteral(": "), 1));
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return {error_number::fileDamaged, QStringLiteral("The data file is damaged (%1).").arg(message)};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return {error_number::fileLocked,
              QStringLiteral("The data file is in use by another program or another part of this one.")};
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return {error_number::readOnly,
              QStringLiteral("The data file cannot be written to; it or its folder is read-only.")};
    case SQLITE_FULL:
      return {error_number::diskFull, QStringLiteral("The disk is full; nothing was saved.")};
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
      return {error_number::cannotOpen,
              QStringLiteral("The data file could not be read or written (%1).").arg(message)};
    case SQLITE_TOOBIG:
      return {error_number::textTooLong, QStringLiteral("A text is too long for the data file.")};
    default:
      return {error_number::other, message};
  }
}

}  // namespace trimlog
