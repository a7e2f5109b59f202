#pragma once

#include <QByteArray>
#include <QVariant>
#include <vector>

#include "platform/store/prepared_statement.h"

namespace trimlog {

/// The rows of a snapshot, packed: a cell is a tag and eight bytes, texts lie one behind the other.
class RowBuffer {
 public:
  explicit RowBuffer(int columns = 0) : columns_(columns) {}
  /// Takes over the row that the statement stands on.
  void Append(const PreparedStatement &statement);
  int Rows() const { return rows_; }
  /// null, qint64, double or QString.
  QVariant Stored(int row, int column) const;

 private:
  enum class Tag : quint8 { Null, Whole, Real, Text };
  struct Cell {
    union {
      qint64 whole;
      double real;
      qint64 offset;
    };
    Tag tag;
    quint32 length;
  };

  int columns_;
  int rows_ = 0;
  std::vector<Cell> cells_;
  QByteArray texts_;
};

}  // namespace trimlog
