#pragma once

#include "platform/sql/sql_writer.h"

namespace trimlog {

/// A table that a FROM clause names.
struct SqlSource {
  QString table;  ///< empty for a SELECT in parentheses
  QString name;   ///< the name that columns use: the alias, or the table itself
  size_t token = 0;
};

/// A FROM clause: its tables, and the conditions of its joins.
struct SqlFrom {
  std::vector<SqlSource> sources;
  std::vector<TokenRange> conditions;
  bool hasOuterJoin = false;
  const SqlSource *Find(QStringView name) const;
};

/// Reads the tables between FROM (or UPDATE) and the next clause, joins in parentheses included.
SqlFrom ReadFrom(const SqlWriter &writer, TokenRange range);

}  // namespace trimlog
