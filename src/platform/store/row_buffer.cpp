#include "platform/store/row_buffer.h"

#include <sqlite3.h>

namespace trimlog {

void RowBuffer::Append(const PreparedStatement &statement) {
  sqlite3_stmt *row = statement.Handle();
  for (int i = 0; i < columns_; ++i) {
    Cell cell{};
    switch (sqlite3_column_type(row, i)) {
      case SQLITE_NULL:
        cell.tag = Tag::Null;
        break;
      case SQLITE_INTEGER:
        cell.tag = Tag::Whole;
        cell.whole = sqlite3_column_int64(row, i);
        break;
      case SQLITE_FLOAT:
        cell.tag = Tag::Real;
        cell.real = sqlite3_column_double(row, i);
        break;
      default: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, i));
        const int length = sqlite3_column_bytes(row, i);
        cell.tag = Tag::Text;
        cell.offset = texts_.size();
        cell.length = static_cast<quint32>(length);
        texts_.append(text, length);
      }
    }
    cells_.push_back(cell);
  }
  ++rows_;
}

QVariant RowBuffer::Stored(int row, int column) const {
  const Cell &cell = cells_[static_cast<size_t>(row) * static_cast<size_t>(columns_) + static_cast<size_t>(column)];
  switch (cell.tag) {
    case Tag::Null:
      return {};
    case Tag::Whole:
      return cell.whole;
    case Tag::Real:
      return cell.real;
    case Tag::Text:
      break;
  }
  return QString::fromUtf8(texts_.constData() + cell.offset, cell.length);
}

}  // namespace trimlog
