#pragma once

#include "platform/grid/grid_columns.h"

namespace trimlog {

/// The columns of exercises done or planned, behind the date. What cannot be used is mended: minutes return to what
/// stood; calories, sets and repetitions become 0. A row is saved as soon as another exercise was chosen or its minutes
/// were changed. `small`: as JournalKind::isSmall.
GridColumns ActivityColumns(bool small);

/// Sets and repetitions that cannot be kept: a sentence for the row, or "".
QString ComplaintAboutActivity(const std::function<Value(const QString &field)> &field);

}  // namespace trimlog
