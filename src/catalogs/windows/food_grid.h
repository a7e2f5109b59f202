#pragma once

#include "core/session.h"
#include "platform/windows/bound_grid.h"

namespace trimlog {

/// A grid of foods with the columns, checks and questions that both tabs share. `objectName` is grdMealsList or
/// grdMealsSearch.
BoundGrid *MakeFoodGrid(const QString &objectName, const QString &label, Session &session, QWidget *parent);

/// Binds the ten nutrient columns to the nutrients shown now.
void ShowSelectedNutrients(BoundGrid &grid, Session &session);

}  // namespace trimlog
