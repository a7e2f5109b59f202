#pragma once

#include "journal/day/journal_kind.h"
#include "platform/grid/grid_columns.h"

namespace trimlog {

/// The columns of exercises done or planned. The date stands there only among all dates. What cannot be used is mended:
/// a date and minutes return to what stood, calories, sets and repetitions become 0. A row is saved as soon as another
/// exercise was chosen or its minutes were changed.
GridColumns ActivityColumns(JournalView view);

/// Sets and repetitions that cannot be kept: a sentence for the row, or "".
QString ComplaintAboutActivity(const std::function<Value(const QString &field)> &field);

/// What is shown of calories: those of changed minutes are kept unrounded.
inline const QString caloriesPattern = QStringLiteral("0.###");

}  // namespace trimlog
