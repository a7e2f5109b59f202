#pragma once

#include <QString>
#include <array>

#include "core/data/nutrients.h"

namespace trimlog {

/// What one of the ten nutrient columns of a food grid is bound to.
struct NutrientColumn {
  QString dataField;  ///< column of meals or meals_list; empty: the position is empty
  QString caption;    ///< two lines: the short name and the unit
  QString pattern;    ///< display pattern
};

/// The ten columns in display order.
std::array<NutrientColumn, shownNutrients> SetMealFields(const Nutrients &nutrients);

}  // namespace trimlog
