#pragma once

#include "platform/sql/sql_from.h"

namespace trimlog {

/// Where the clauses of one SELECT (no UNION) stand.
struct SelectClauses {
  bool distinct = false;
  bool distinctRow = false;
  QString top;
  TokenRange list;
  QString into;
  TokenRange from;  ///< empty for a SELECT of values
  QString sideFile;
  TokenRange where, group, order;  ///< with their keywords; `group` holds HAVING too
};

SelectClauses ReadSelect(const SqlWriter &writer, TokenRange range);

/// Writes a SELECT, alone or in a UNION; notes what kind of values its expressions give. The outermost one may say INTO
/// and name a side file.
class SelectWriter {
 public:
  SelectWriter(SqlWriter &writer, TranslatedSql &result) : writer_(writer), result_(result) {}
  void Write(TokenRange range, bool outermost = false);
  /// Writes the list's values through the conversions of the columns that take them.
  void WriteConverted(TokenRange range, const std::vector<const StoredColumn *> &targets);
  /// Can WriteConverted wrap each value by itself? Not for *, DISTINCT or UNION.
  bool CanConvertEach(TokenRange range, size_t count) const;

 private:
  void WriteClauses(const SelectClauses &clauses, const QString &list, bool outermost);
  void NoteTypes(const SelectClauses &clauses, const SqlFrom &from);
  std::optional<ColumnType> TypeOf(TokenRange expression, const SqlFrom &from);
  std::optional<ColumnType> TypeOfColumn(TokenRange column, const SqlFrom &from);
  void NoteSingleTable(const SelectClauses &clauses, const SqlFrom &from, const QString &list);
  SqlFrom ReadSources(const SelectClauses &clauses);

  SqlWriter &writer_;
  TranslatedSql &result_;
};

/// "conversion(value, 'Column')" for a value written to a column.
QString ConvertedValue(const QString &value, const StoredColumn &column);

}  // namespace trimlog
