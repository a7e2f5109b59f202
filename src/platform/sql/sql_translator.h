#pragma once

#include <QHash>
#include <QStringList>

#include "platform/sql/sql_tokenizer.h"
#include "platform/store/column_types.h"

namespace trimlog {

struct StoredColumn {
  QString name;
  std::optional<DeclaredColumn> declared;  ///< nothing for a declared type of another program
};

struct StoredTable {
  QString name;
  bool isView = false;
  std::vector<StoredColumn> columns;
  const StoredColumn *Find(QStringView column) const;
};

/// What the translation asks of the open file.
class TranslationContext {
 public:
  virtual ~TranslationContext() = default;
  /// A table or saved query of the main file, or of a side file (its schema name); nullptr when there is none.
  virtual const StoredTable *FindTable(const QString &schema, const QString &table) = 0;
  /// Is there a table in the main file with a BOOLEAN column of this name?
  virtual bool IsBooleanColumn(QStringView name) = 0;
  /// Makes a side file's tables reachable and returns the schema name that they stand under.
  virtual QString OpenSideFile(const QString &path, bool forWriting) = 0;
};

/// How a SELECT on one table is taken apart into keys and rows.
struct SingleTableSelect {
  QString table;  ///< empty: the rows come from more than one table, or are no rows of a table
  QString keys;   ///< selects the rowids in order
  QString row;    ///< selects the row whose rowid is bound behind the statement's own slots
};

struct TranslatedSql {
  enum class Kind { Select, SelectInto, Change, Definition };
  Kind kind = Kind::Select;
  QString sql;  ///< slots stand as ?1, ?2, ...
  QString intoTable;
  QHash<QString, ColumnType> expressionTypes;  ///< by lower-case alias, where SQLite cannot tell
  SingleTableSelect single;
  bool usesSideFile = false;
};

/// Gives a statement the form that SQLite reads, with the same meaning; values written to columns are wrapped in the
/// conversions of their columns. Throws invalidSql naming a form or a function that is not known, unknownTable,
/// unknownColumn.
TranslatedSql Translate(const TokenizedSql &statement, TranslationContext &context);

/// A condition alone, as FindFirst takes it; column names without their table.
QString TranslateCondition(const TokenizedSql &condition, TranslationContext &context, int firstSlot);

/// Puts a name in brackets for SQLite.
QString BracketedName(QStringView name);

}  // namespace trimlog
