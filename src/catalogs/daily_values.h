#pragma once

#include <QString>
#include <array>

#include "core/session/session.h"

namespace trimlog {

/// The nutrients that a food label gives as percent of the daily value, in the converter's order, by NutrientID.
inline constexpr std::array<int, 16> dailyValueNutrients = {
    nutrient_id::fat,       nutrient_id::satFat,    nutrient_id::cholesterol, nutrient_id::sodium,
    nutrient_id::potassium, nutrient_id::carbs,     nutrient_id::fiber,       nutrient_id::protein,
    nutrient_id::vitaminA,  nutrient_id::vitaminC,  nutrient_id::calcium,     nutrient_id::iron,
    nutrient_id::vitaminE,  nutrient_id::vitaminB6, nutrient_id::vitaminB12,  nutrient_id::zinc};
inline constexpr double highestPercent = 10000;  ///< of a daily value; the amount stays within what a food can hold

/// "Total Fat (%):", "Saturated Fat (%):", ...
QString DailyValueLabel(const Nutrients &nutrients, int nutrientID);

/// The amount that a percentage of the daily value is, by target set 1, formatted by the nutrient's pattern in the
/// locale's form. A nutrient without a reference value gives 0.
QString AmountFromDailyValue(Session &session, int nutrientID, double percent);

}  // namespace trimlog
