#pragma once

#include <QStringView>
#include <optional>

#include "platform/error.h"
#include "platform/store/column_types.h"

struct sqlite3;

namespace trimlog {

/// A function that a statement may call, and what SQLite knows it by.
struct SqlFunction {
  const char *emitted;
  int minimumArguments;
  int maximumArguments;
  std::optional<ColumnType> result;  ///< the kind of value it gives, where SQLite cannot tell
  bool likeArgument = false;         ///< gives a value of its first argument's kind (Max, Min)
};

/// Case does not matter; nullptr for a function that no statement may call.
const SqlFunction *FindSqlFunction(QStringView name);

/// Where a function called from within SQLite leaves the error that stopped it: SQLite itself carries only a sentence.
struct FunctionFailure {
  std::optional<Error> error;
};

/// Gives a connection the functions above, LIKE with the wildcards * ? # [..], text comparison without case for all
/// letters, and the conversions that statements wrap written values in. `failure` must outlive the connection.
void RegisterSqlFunctions(sqlite3 *connection, FunctionFailure &failure);

/// The conversion function for values written to a column of this type: emitted(value, column name[, length]).
const char *ConversionFunction(ColumnType type);

}  // namespace trimlog
