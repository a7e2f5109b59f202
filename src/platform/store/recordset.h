#pragma once

#include <memory>

#include "platform/store/database.h"

namespace trimlog {

/// The rows of a SELECT and a cursor on one of them. It starts on the first row, or at the end when there is none.
/// Reading a field without a current row throws noCurrentRecord; an unknown name throws unknownColumn.
class Recordset {
 public:
  struct Impl;
  explicit Recordset(std::unique_ptr<Impl> impl);
  Recordset(Recordset &&) noexcept;
  Recordset &operator=(Recordset &&) noexcept;
  ~Recordset();

  bool Bof() const;
  bool Eof() const;
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  /// Zero-based; -1 without a current row.
  int AbsolutePosition() const;
  void SetAbsolutePosition(int position);
  /// The true number of rows (not the visited ones). Not for Forward.
  int RecordCount() const;

  QStringList FieldNames() const;
  /// The current row's value by column name (case does not matter) or by position.
  Value Field(const QString &name) const;
  Value Field(int column) const;
  /// The same as text: "" for Null; numbers in plain form (point, no grouping); dates ISO; booleans "-1" and "0".
  QString Text(const QString &name) const;
  double Number(const QString &name) const;  ///< 0 for Null
  int Integer(const QString &name) const;    ///< 0 for Null

  /// Moves to the first row that meets a criterion written without the table name, e.g. "RecordID=7". When none does,
  /// NoMatch() is true and the current row stays.
  void FindFirst(const QString &criterion, const Params &params = {});
  bool NoMatch() const;

  /// A row's lasting name within this recordset.
  QVariant Bookmark() const;
  void SetBookmark(const QVariant &bookmark);

  void AddNew();
  void Edit();
  void SetField(const QString &name, const Value &value);
  void Update();  ///< writes the row begun by AddNew or Edit, in one transaction
  void CancelUpdate();
  void Delete();  ///< deletes the current row; the cursor stands between its neighbours until it moves

 private:
  std::unique_ptr<Impl> impl_;
};

}  // namespace trimlog
