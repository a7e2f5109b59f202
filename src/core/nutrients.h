#pragma once

#include <QString>
#include <array>

#include "platform/database.h"

namespace trimlog {

inline constexpr int nutrientCount = 35;  ///< NutrientID runs from 1 to this
inline constexpr int shownNutrients = 10;

/// One nutrient of the vocabulary. `Value` is working storage while one entry is being added.
struct NutrientDef {
  QString description;
  QString fieldName;  ///< its column in meals_list, meals and nutrition_targets
  QString descriptionPlusUnit;
  QString shortUnit;
  QString longUnit;
  double Value = 0;
};

/// One of the ten positions that every food grid shows.
struct SelectedNutrient {
  int NutrientID = 0;  ///< 0: the position is empty
  QString description;
  bool NutTotal = false;  ///< totalled by day, and scaled by the servings
  QString descriptionPlusUnit;
};

/// The nutrient vocabulary in memory, read at start and after each change of it.
struct Nutrients {
  std::array<NutrientDef, nutrientCount> NutrientDefs;             ///< by NutrientID - 1
  std::array<SelectedNutrient, shownNutrients> SelectedNutrients;  ///< by position
  std::array<double, nutrientCount> NutrientTargets;               ///< by NutrientID - 1; -1 for no target

  Nutrients() { NutrientTargets.fill(-1); }
};

/// Reads the 35 definitions. Throws outOfBounds for an id above 35.
void FillNutrientDefinitions(Nutrients &nutrients, Database &database);
/// Reads the ten shown positions; one selection holds for the whole file.
void FillSelectedNutrientsArray(Nutrients &nutrients, Database &database);
/// Reads the targets of a target set: all -1 for set 0; the table's first row when the set is not there.
void FillNutrientTargets(Nutrients &nutrients, Database &database, int targetID);

/// The display pattern of a nutrient's column, e.g. "0.000" for Iron; "0.00" for any other name.
QString GetNutrientFormat(const QString &fieldName);

}  // namespace trimlog
