#include "platform/grid/grid_columns.h"

#include <algorithm>

namespace trimlog {

namespace {

bool ShowsSomething(const GridColumn &column) { return column.visible && !column.field.isEmpty(); }

}  // namespace

int ColumnIndex(const GridColumns &columns, const QString &name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto &one) { return one.name == name; });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

int FirstShown(const GridColumns &columns) {
  const auto first = std::find_if(columns.begin(), columns.end(), ShowsSomething);
  return first == columns.end() ? 0 : static_cast<int>(first - columns.begin());
}

int LastShown(const GridColumns &columns) {
  const auto last = std::find_if(columns.rbegin(), columns.rend(), ShowsSomething);
  return last == columns.rend() ? 0 : static_cast<int>(columns.rend() - last) - 1;
}

QStringList FieldsOf(const GridColumns &columns) {
  QStringList fields;
  for (const GridColumn &column : columns) {
    for (const QString &field : {column.field, column.textField}) {
      if (!field.isEmpty() && !fields.contains(field)) fields.append(field);
    }
  }
  return fields;
}

}  // namespace trimlog
