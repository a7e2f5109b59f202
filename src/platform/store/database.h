#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

#include "platform/error.h"

namespace trimlog {

/// A column's value: bool, int / qint64, double, QString, QDate, or an invalid QVariant for Null.
using Value = QVariant;
using Params = QVariantList;

class Recordset;

/// How much work the store did, so that a test can prove that a keystroke reads no more than it shows.
struct StoreCounts {
  qint64 statements = 0;  ///< statements run (reading and writing)
  qint64 rowsRead = 0;    ///< rows handed out by SELECTs
  qint64 commits = 0;     ///< write transactions committed
};

enum class RecordsetKind {
  Snapshot,  ///< all rows in memory, read only
  Dynaset,   ///< keys first, rows as they are visited; can be edited when it reads one table
  Forward,   ///< one pass, no memory: MoveNext only
};

/// One connection to one data file. Statements use the program's SQL conventions (docs/sql-conventions.md): dates as
/// #m/d/yyyy#, text between double quotes, DELETE t.*, t.c FROM t and so on. A `?` stands for a bound parameter;
/// anything a person typed goes through one, or through QuoteText.
///
/// Every failure is an Error with a number of error_number.
class Database {
 public:
  /// Opens an existing data file for reading and writing, alone. Throws fileMissing when there is no such file,
  /// fileDamaged when it is not a data file of this program or is damaged, fileLocked when another process holds it,
  /// readOnly / cannotOpen otherwise. Never creates, never repairs, never writes to a file that is not ours.
  static std::unique_ptr<Database> Open(const QString &path);
  /// Opens an existing data file for reading only (side files such as foodexer1.dat).
  static std::unique_ptr<Database> OpenReadOnly(const QString &path);
  /// Makes a new empty data file; throws when something already stands at the path.
  static std::unique_ptr<Database> Create(const QString &path);

  ~Database();
  Database(const Database &) = delete;
  Database &operator=(const Database &) = delete;

  /// Runs a statement that changes data or structure; returns the number of rows changed.
  qint64 Execute(const QString &sql, const Params &params = {});
  /// Opens the rows of a SELECT. Dynaset editing needs a single table with a key.
  Recordset OpenRecordset(const QString &sql, const Params &params = {}, RecordsetKind kind = RecordsetKind::Snapshot);

  bool HasTable(const QString &table) const;
  QStringList ColumnNames(const QString &table) const;
  const QString &Path() const;

  /// Writes the whole file to another path by the store's own backup call.
  void CopyTo(const QString &path);
  /// True when the store finds the file sound throughout.
  bool IntegrityOk();

  StoreCounts Counts() const;

  bool InTransaction() const;
  /// Runs the work once the outermost open transaction is committed, in the order in which it was given; at once when
  /// none is open. A transaction that is taken back drops what was given inside it. What the work throws comes out of
  /// the commit, after all the rest has run: the data are saved by then.
  void AfterCommit(std::function<void()> work);

  struct Impl;
  Impl &Internals() { return *impl_; }

 private:
  explicit Database(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

/// All or nothing: rolls back unless committed. May be nested; the outermost one decides, and delivers what was given
/// to AfterCommit.
class Transaction {
 public:
  explicit Transaction(Database &database);
  ~Transaction();
  Transaction(const Transaction &) = delete;
  Transaction &operator=(const Transaction &) = delete;
  void Commit();

 private:
  Database &database_;
  size_t collectedBefore_;  ///< how much waited for the commit when this transaction began
  bool open_ = true;
};

/// A text literal for a statement: in double quotes, with the text's own double quotes made harmless. The value that
/// reaches the file is the text unchanged.
QString QuoteText(const QString &text);

}  // namespace trimlog
