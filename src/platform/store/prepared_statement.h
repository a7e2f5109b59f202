#pragma once

#include <QString>
#include <QVariant>
#include <memory>
#include <optional>
#include <vector>

#include "platform/sql/sql_tokenizer.h"
#include "platform/store/column_types.h"

struct sqlite3;
struct sqlite3_stmt;

namespace trimlog {

struct ResultColumn {
  QString name;
  std::optional<ColumnType> type;  ///< nothing: the value is given as SQLite finds it
};

/// A statement that SQLite has compiled. Bound, stepped and reset by whoever holds it in use.
class PreparedStatement {
 public:
  PreparedStatement(sqlite3 *connection, const QString &sql);
  ~PreparedStatement();
  PreparedStatement(const PreparedStatement &) = delete;
  PreparedStatement &operator=(const PreparedStatement &) = delete;

  /// `index` from 1; a slot that the statement does not use is passed over.
  void Bind(int index, const QVariant &value);
  /// True for a row, false at the end. `failure` is what a function called from within left behind.
  bool Step(struct FunctionFailure &failure);
  void Reset();
  /// Lets go of the compiled form, since its connection closes; it can only be destroyed then.
  void Finalize();

  QVariant Stored(int column) const;  ///< null, qint64, double or QString
  QVariant Value(int column) const;   ///< by the column's type
  bool IsReadOnly() const;
  const std::vector<ResultColumn> &Columns() const { return columns_; }
  void NameTypes(const QHash<QString, ColumnType> &expressionTypes);
  sqlite3_stmt *Handle() const { return statement_; }

  bool inUse = false;

 private:
  sqlite3 *connection_;
  sqlite3_stmt *statement_ = nullptr;
  int slots_ = 0;
  std::vector<ResultColumn> columns_;
};

}  // namespace trimlog
