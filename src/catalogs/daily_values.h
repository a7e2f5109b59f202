#pragma once

#include <QString>
#include <array>

#include "core/session/session.h"

namespace trimlog {

/// The nutrients that a food label gives as percent of the daily value, in the converter's order, by NutrientID.
inline constexpr std::array<int, 16> dailyValueNutrients = {3, 16, 19, 8, 9, 2, 5, 4, 11, 15, 6, 7, 12, 13, 14, 10};

/// "Total Fat (%):", "Saturated Fat (%):", ...
QString DailyValueLabel(const Nutrients &nutrients, int nutrientID);

/// The amount that a percentage of the daily value is, by target set 1, formatted by the nutrient's pattern in the
/// locale's form. A nutrient without a reference value gives 0.
QString AmountFromDailyValue(Session &session, int nutrientID, double percent);

}  // namespace trimlog
