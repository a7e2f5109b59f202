#pragma once

#include <QStringList>
#include <array>
#include <optional>

#include "core/nutrients.h"
#include "platform/recordset.h"

namespace trimlog {

/// The nutrients of one row of meals_list or meals as stored, per serving for a food. A column that is Null has no
/// value.
class FoodValues {
 public:
  /// Reads the 35 columns of the current row. Throws noCurrentRecord or unknownColumn.
  static FoodValues Read(const Recordset &row, const Nutrients &nutrients);

  /// By NutrientID, 1 to 35; throws outOfBounds beyond.
  std::optional<double> At(int nutrientID) const;
  double OrZero(int nutrientID) const { return At(nutrientID).value_or(0); }
  void Set(int nutrientID, std::optional<double> value);

 private:
  std::array<std::optional<double>, nutrientCount> values_;
};

/// Nutrients that the rules treat apart, by NutrientID.
namespace nutrient_id {
inline constexpr int calories = 1;
inline constexpr int carbs = 2;
inline constexpr int fat = 3;
inline constexpr int protein = 4;
inline constexpr int fiber = 5;
inline constexpr int calFromFatPct = 23;
inline constexpr int calFromProteinPct = 25;
inline constexpr int calFromCarbPct = 27;
inline constexpr int firstCustom = 28;
inline constexpr int lastCustom = 32;
inline constexpr int netCarbs = 33;
inline constexpr int sugarAlcohols = 34;
inline constexpr int transFat = 35;
}  // namespace nutrient_id

/// A share of the calories: it neither scales with the servings nor adds up over a day.
bool IsPercentOfCalories(int nutrientID);
bool IsCustomNutrient(int nutrientID);

}  // namespace trimlog
