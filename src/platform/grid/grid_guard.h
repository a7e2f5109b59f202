#pragma once

#include <functional>

#include "platform/grid/grid_hooks.h"

namespace trimlog {

class GridModel;

/// Runs work on a grid that may fail, the failure handled as the grid's guard hook says; without one its sentence is
/// shown at the row being changed. False when the work failed.
bool RunGuarded(GridModel &model, GridAction action, const std::function<void()> &work);

}  // namespace trimlog
