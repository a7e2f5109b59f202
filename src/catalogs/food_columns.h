#pragma once

#include <QString>
#include <vector>

#include "core/session/failure_guard.h"
#include "core/session/session.h"
#include "platform/grid/grid_columns.h"
#include "platform/grid/grid_hooks.h"

namespace trimlog {

/// The columns of both food grids, with their checks: description, serving, group, glycemic value and the ten shown
/// nutrients. A position that shows no nutrient is hidden. `groupsDropDown` names the list of food groups in a cell.
GridColumns FoodColumns(Session &session, const QString &groupsDropDown);

/// Has a column the field of a sort key?
bool IsSortShown(const GridColumns &columns, const QString &sort);
/// An order that a column's caption made, in words: "Serving Size", "GI Value (descending)".
QString SortedByText(const GridColumns &columns, const QString &sort);

/// Before a changed food is stored: it counts as modified from now on, double quotes leave its texts, and its nutrients
/// are rounded to what is shown. Returns why the row is refused, or "".
QString PrepareEditedFood(const Nutrients &nutrients, GridRowEdit &row);

/// True for a row that may not be changed in the grid: a pre-loaded food.
bool IsPreLoadedFood(const std::function<Value(const QString &field)> &field);

/// May these foods be deleted? Asks once, or says that pre-loaded foods stay.
bool ConfirmDeleteFoods(Session &session, const std::vector<qint64> &keys);

/// The failure exits of the food grids, of the catalog or of the picker; a failed reading is logged under
/// `loadProcedure`.
FailureExit FoodGridFailure(GridAction action, const QString &loadProcedure, bool forPicking);

}  // namespace trimlog
