#pragma once

#include <QString>
#include <array>

#include "platform/store/database.h"

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

/// The nutrients by NutrientID; five custom ones between firstCustom and lastCustom.
namespace nutrient_id {
inline constexpr int calories = 1;
inline constexpr int carbs = 2;
inline constexpr int fat = 3;
inline constexpr int protein = 4;
inline constexpr int fiber = 5;
inline constexpr int calcium = 6;
inline constexpr int iron = 7;
inline constexpr int sodium = 8;
inline constexpr int potassium = 9;
inline constexpr int zinc = 10;
inline constexpr int vitaminA = 11;
inline constexpr int vitaminE = 12;
inline constexpr int vitaminB6 = 13;
inline constexpr int vitaminB12 = 14;
inline constexpr int vitaminC = 15;
inline constexpr int satFat = 16;
inline constexpr int monoFat = 17;
inline constexpr int polyFat = 18;
inline constexpr int cholesterol = 19;
inline constexpr int sugar = 20;
inline constexpr int alcohol = 21;
inline constexpr int calFromFat = 22;
inline constexpr int calFromFatPct = 23;
inline constexpr int calFromProtein = 24;
inline constexpr int calFromProteinPct = 25;
inline constexpr int calFromCarb = 26;
inline constexpr int calFromCarbPct = 27;
inline constexpr int firstCustom = 28;
inline constexpr int lastCustom = 32;
inline constexpr int netCarbs = 33;
inline constexpr int sugarAlcohols = 34;
inline constexpr int transFat = 35;
// Figures of a day that are no nutrient, offered beside them for the calendar and the charts.
inline constexpr int caloriesBurned = 101;
inline constexpr int netCalories = 102;
}  // namespace nutrient_id

/// A share of the calories: it neither scales with the servings nor adds up over a day.
bool IsPercentOfCalories(int nutrientID);
bool IsCustomNutrient(int nutrientID);

/// The definition of NutrientID 1 to 35; throws outOfBounds beyond.
const NutrientDef &Definition(const Nutrients &nutrients, int nutrientID);
/// The name that the person gave a custom nutrient where it is shown; "" for one that is not, and for all others.
QString CustomNutrientName(const Nutrients &nutrients, int nutrientID);

/// Reads the 35 definitions. Throws outOfBounds for an id above 35.
void FillNutrientDefinitions(Nutrients &nutrients, Database &database);
/// Reads the ten shown positions; one selection holds for the whole file.
void FillSelectedNutrientsArray(Nutrients &nutrients, Database &database);
/// Reads the targets of a target set: all -1 for set 0; the table's first row when the set is not there.
void FillNutrientTargets(Nutrients &nutrients, Database &database, int targetID);

/// The display pattern of a nutrient's column, e.g. "0.000" for Iron; "0.00" for any other name.
QString GetNutrientFormat(const QString &fieldName);

}  // namespace trimlog
