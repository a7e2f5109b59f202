#pragma once

#include "core/session/session.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

/// The list of exercises, grdActivitiesList: its columns, failures in their box, the widths kept, changes made
/// elsewhere followed. Letters go to the next exercise that begins with them.
BoundGrid *MakeExerciseGrid(Session &session, QWidget *parent);

}  // namespace trimlog
