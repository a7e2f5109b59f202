#pragma once

#include "platform/sql/sql_writer.h"

namespace trimlog {

/// Writes CREATE, ALTER and DROP of tables, indexes and saved queries (VIEW). Column types take the declared form of
/// column_types.h, whichever of their names a statement uses.
void WriteDefinition(SqlWriter &writer);

}  // namespace trimlog
