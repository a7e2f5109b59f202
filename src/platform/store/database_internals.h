#pragma once

#include <SQLiteCpp/Database.h>

#include <QCache>
#include <QHash>

#include "platform/sql/sql_functions.h"
#include "platform/store/database.h"
#include "platform/store/prepared_statement.h"
#include "platform/store/store_schema.h"

namespace trimlog {

/// A statement's shape, translated and compiled, with its literals left open.
struct StatementForm {
  TranslatedSql translated;
  std::shared_ptr<PreparedStatement> main;
  std::shared_ptr<PreparedStatement> keys;  ///< made when a Dynaset first asks for them
  std::shared_ptr<PreparedStatement> row;
};

/// A statement as its caller wrote it: a form, and what goes into its slots.
struct KnownStatement {
  std::shared_ptr<StatementForm> form;
  std::vector<SqlSlot> slots_;
  int parameterCount = 0;
};

/// Holds a compiled statement for one run, then resets it. Takes a copy of its own when the cached one is in use.
class StatementUse {
 public:
  StatementUse(Database::Impl &database, std::shared_ptr<PreparedStatement> cached, const QString &sql,
               const QHash<QString, ColumnType> &expressionTypes);
  ~StatementUse();
  StatementUse(StatementUse &&) noexcept = default;
  StatementUse &operator=(StatementUse &&) = delete;
  PreparedStatement *operator->() const { return statement_.get(); }
  PreparedStatement &operator*() const { return *statement_; }

 private:
  std::shared_ptr<PreparedStatement> statement_;
};

/// The one connection, and what is kept about it.
struct Database::Impl final : public TranslationContext {
  Impl(const QString &filePath, int flags);
  ~Impl() override;

  const StoredTable *FindTable(const QString &schema, const QString &table) override {
    return structure.Find(schema, table);
  }
  bool IsBooleanColumn(QStringView name) override { return structure.IsBooleanColumn(name); }
  QString OpenSideFile(const QString &path, bool forWriting) override;
  void CloseSideFiles();
  qint64 SelectInto(const KnownStatement &known, const Params &params);

  /// The statement from the cache, or translated and compiled anew.
  std::shared_ptr<KnownStatement> Know(const QString &sql);
  StatementUse Use(StatementForm &form);
  std::shared_ptr<PreparedStatement> Compile(const QString &sql,
                                             const QHash<QString, ColumnType> &expressionTypes = {});
  void Bind(PreparedStatement &statement, const KnownStatement &known, const Params &params) const;
  static void CheckParameters(const KnownStatement &known, const Params &params);
  /// Runs a compiled statement that gives no rows.
  qint64 Run(PreparedStatement &statement);
  /// Runs a change that gives back the key of its row; nothing when no row was changed.
  std::optional<qint64> RunReturning(PreparedStatement &statement);
  /// SQLite's own words, for what no caller states: BEGIN, PRAGMA.
  void Plain(const char *sql);
  void ForgetStatements();
  void ForgetStructure();
  /// Refuses to go on in a transaction that a failure has already ended.
  void CheckTransaction() const;

  const QString path;
  SQLite::Database connection;
  sqlite3 *const handle;
  FunctionFailure failure;
  StoreSchema structure;
  StoreCounts counts;
  QCache<QString, std::shared_ptr<KnownStatement>> texts{512};
  QCache<QString, std::shared_ptr<StatementForm>> shapes{256};
  QHash<QString, QString> sideFiles;  ///< schema name by path
  int sideFileNumber = 0;
  int depth = 0;
  std::vector<std::function<void()>> afterCommit;
  std::vector<std::weak_ptr<PreparedStatement>> compiled;  ///< all that may outlive the connection in a recordset
  const std::shared_ptr<bool> closed = std::make_shared<bool>(false);
  qint64 changesAtBegin = 0;
};

}  // namespace trimlog
