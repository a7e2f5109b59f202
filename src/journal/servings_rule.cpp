#include "journal/servings_rule.h"

#include <cmath>

#include "platform/error.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// What no number can hold is told, not stored as something else.
double Finite(double value) {
  if (!std::isfinite(value)) throw Error(error_number::overflow, QStringLiteral("Overflow"));
  return value;
}

/// The value as the display pattern of its column leaves it.
double Rounded(double value, const QString &fieldName) {
  return Val(Format(Finite(value), GetNutrientFormat(fieldName)));
}

const QString &FieldName(const Nutrients &nutrients, int nutrientID) {
  return Definition(nutrients, nutrientID).fieldName;
}

double ShownValue(const SelectedNutrient &position, const FoodValues &food, const QString &cell, double servings,
                  const QLocale &locale) {
  const std::optional<double> number = ParseNumber(cell, locale);
  if (!number) return 0;
  if (!position.NutTotal || IsPercentOfCalories(position.NutrientID)) return *number;
  if (position.NutrientID == nutrient_id::netCarbs) return ScaledNetCarbs(food, servings);
  return *number * servings;
}

}  // namespace

double ScaledNetCarbs(const FoodValues &food, double servings) {
  const double carbs = food.OrZero(nutrient_id::carbs);
  const double fiber = food.OrZero(nutrient_id::fiber);
  const double sugarAlcohols = food.OrZero(nutrient_id::sugarAlcohols);
  const std::optional<double> stored = food.At(nutrient_id::netCarbs);
  const bool computed = !stored || Whole(carbs - fiber - sugarAlcohols) == Whole(*stored);
  if (computed) return Whole(carbs * servings - fiber * servings - sugarAlcohols * servings);
  return Val(Format(*stored * servings, QStringLiteral("0")));
}

EntryValues NewEntryValues(const Nutrients &nutrients, const FoodValues &food, const ShownCells &shown, double servings,
                           const QLocale &locale) {
  EntryValues values;
  for (int id = 1; id <= nutrientCount; ++id) {
    const double factor = IsPercentOfCalories(id) || IsCustomNutrient(id) ? 1 : servings;
    values[static_cast<std::size_t>(id - 1)] = Rounded(food.OrZero(id) * factor, FieldName(nutrients, id));
  }
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const SelectedNutrient &position = nutrients.SelectedNutrients[i];
    if (position.NutrientID == 0) continue;
    const double value = ShownValue(position, food, shown[i], servings, locale);
    values.at(static_cast<std::size_t>(position.NutrientID - 1)) =
        Rounded(value, FieldName(nutrients, position.NutrientID));
  }
  return values;
}

ShownCells AdjustNutrientValues(const Nutrients &nutrients, const FoodValues &food, const ShownCells &cells,
                                double servings, bool foodChanged, const QLocale &locale) {
  ShownCells adjusted = cells;
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const SelectedNutrient &position = nutrients.SelectedNutrients[i];
    const int id = position.NutrientID;
    if (id == 0 || (!position.NutTotal && !foodChanged)) continue;
    double value = food.OrZero(id);
    if (position.NutTotal && id == nutrient_id::netCarbs) {
      value = ScaledNetCarbs(food, servings);
    } else if (position.NutTotal && !IsPercentOfCalories(id)) {
      value *= servings;
    }
    adjusted[i] = Format(Finite(value), GetNutrientFormat(FieldName(nutrients, id)), locale);
  }
  return adjusted;
}

}  // namespace trimlog
