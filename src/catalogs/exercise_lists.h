#pragma once

#include "platform/grid/grid_columns.h"
#include "platform/grid/grid_source.h"

namespace trimlog {

/// The exercises to choose one from for a day: those of one's own first, each kind by name.
GridSource ExercisesToPick();

/// The columns of a list of exercises, which is only read here.
GridColumns ExerciseColumns();

}  // namespace trimlog
