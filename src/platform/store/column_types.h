#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

namespace trimlog {

/// What a column of the data file holds. The file names each by its declared type, so that any SQLite tool shows it;
/// the store reads it back from there, gives values of the right kind and keeps the rules when a value is written.
enum class ColumnType {
  Boolean,   ///< BOOLEAN: 0 or 1, never Null; Value bool
  Byte,      ///< BYTE: 0 to 255; Value int
  Integer,   ///< SMALLINT: 16 bits, signed; Value int
  Long,      ///< INTEGER: 32 bits, signed; Value int. As "INTEGER PRIMARY KEY" it is the row's own key
  Single,    ///< REAL: a number rounded to 32-bit precision; Value double
  Double,    ///< DOUBLE: Value double
  Decimal2,  ///< DECIMAL2: a number kept with two decimals, halves away from zero; Value double
  Date,      ///< DATE: ISO 8601 text, no time; Value QDate
  Text,      ///< TEXT(n) COLLATE NOCASE: up to n characters, or any number for TEXT(0); Value QString
  Memo,      ///< LONGTEXT COLLATE NOCASE: text without limit; Value QString
};

/// A column as CREATE TABLE and ALTER TABLE ADD COLUMN take it, e.g. "[Goal] TEXT(20) COLLATE NOCASE". The one place
/// where the declared types are written. `length` counts for Text only. Add constraints such as " NOT NULL" or "
/// PRIMARY KEY" behind it. Whole-number columns round halves to even and refuse what does not fit; nothing needs a
/// CHECK.
///
/// Tables keep SQLite's rowid (never WITHOUT ROWID). Text columns stand in no index and no key: this program compares
/// them without case for all letters, other tools for A to Z only.
QString ColumnDeclaration(const QString &name, ColumnType type, int length = 0);

/// The declared type alone, e.g. "TEXT(20)".
QString DeclaredType(ColumnType type, int length = 0);

struct DeclaredColumn {
  ColumnType type = ColumnType::Memo;
  int length = 0;  ///< Text only; 0 is without limit
};

/// Reads a declared type, the classic engine names included (YESNO, SHORT, LONG, COUNTER, SINGLE, DATETIME, MEMO,
/// VARCHAR(n), ...); nothing for a name that is none of them.
std::optional<DeclaredColumn> ParseDeclaredType(QByteArrayView declared);

}  // namespace trimlog
