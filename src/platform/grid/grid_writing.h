#pragma once

#include <vector>

#include "platform/grid/grid_row_edit.h"
#include "platform/grid/grid_source.h"

namespace trimlog {

/// Writes the row being changed, a new one as a new record; returns its key. Throws when the row has been deleted
/// meanwhile.
qint64 WriteRow(Database &database, const GridSource &source, const GridRowEdit &row);
void DeleteRows(Database &database, const GridSource &source, const std::vector<qint64> &keys);

}  // namespace trimlog
