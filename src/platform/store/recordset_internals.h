#pragma once

#include <QCache>
#include <QHash>

#include "platform/store/database_internals.h"
#include "platform/store/recordset.h"
#include "platform/store/row_buffer.h"

namespace trimlog {

Recordset OpenRows(Database::Impl &database, const QString &sql, const Params &params, RecordsetKind kind);

/// The rows and the cursor. Where the rows come from depends on the kind: all of them in memory (Snapshot, and a
/// Dynaset over more than one table), by key as they are visited (a Dynaset on one table), or straight from the
/// statement (Forward).
struct Recordset::Impl {
  enum class Editing { None, Adding, Changing };
  using Row = std::vector<QVariant>;

  Impl(Database::Impl &owner, std::shared_ptr<KnownStatement> statement, Params given)
      : database(owner), known(std::move(statement)), params(std::move(given)), visited(256) {}

  int Count() const { return keyed ? static_cast<int>(keys.size()) : rows.Rows(); }
  bool HasRow() const;
  void RequireRow() const;
  void RequireOpen() const;
  const QVariant &Visited(qint64 key, int column) const;
  QVariant ValueAt(int row, int column) const;
  int ColumnOf(const QString &name) const;
  void LoadRows();
  void LoadKeys();
  bool StepForward();
  void RequireEditable() const;
  const StoredColumn &TableColumn(const QString &name) const;
  void FindKeyed(const QString &criterion, const Params &given);
  void FindInMemory(const QString &criterion, const Params &given);

  Database::Impl &database;
  std::shared_ptr<KnownStatement> known;
  Params params;
  std::vector<ResultColumn> columns;

  bool keyed = false;
  std::vector<qint64> keys;
  mutable QCache<qint64, Row> visited;
  RowBuffer rows;
  std::optional<StatementUse> forward;
  bool forwardEnd = false;

  const std::shared_ptr<bool> closed = database.closed;  ///< the data file was closed while this recordset was held

  int position = 0;
  bool onDeleted = false;  ///< the current row is gone; `position` is where its successor stands
  bool noMatch = false;

  Editing editing = Editing::None;
  QHash<QString, QVariant> pending;  ///< stored values by the table's column name
};

}  // namespace trimlog
