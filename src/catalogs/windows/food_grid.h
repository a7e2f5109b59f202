#pragma once

#include "core/session/session.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

/// What tells the food grids apart.
struct FoodGridNames {
  QString grid;             ///< grdMealsList or grdMealsSearch
  QString label;            ///< what a screen reader says
  QString dropDown;         ///< the list of food groups in a cell
  QString loadProcedure;    ///< under which a failed reading is logged
  bool forPicking = false;  ///< no row is changed, deleted or pasted
};

/// A grid of foods with the columns, checks and questions that all of them share.
BoundGrid *MakeFoodGrid(const FoodGridNames &names, Session &session, QWidget *parent);

/// Binds the ten nutrient columns to the nutrients shown now.
void ShowSelectedNutrients(BoundGrid &grid, const FoodGridNames &names, Session &session);

}  // namespace trimlog
