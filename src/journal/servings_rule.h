#pragma once

#include <QLocale>
#include <array>

#include "core/data/nutrients.h"
#include "journal/food_values.h"

namespace trimlog {

/// A journal entry is a snapshot of its food: its nutrients are computed once, by these rules, rounded to what is
/// shown, and stored. Nothing looks the food up again until the person changes the servings or picks another food.

/// Texts of the ten shown cells of a row, in display order and in the locale's form.
using ShownCells = std::array<QString, shownNutrients>;

/// Net carbs of `servings` servings. When the food's net carbs are what its carbs, fiber and sugar alcohols give
/// (compared as whole numbers), they are computed again and rounded, halves to even; otherwise somebody typed them, and
/// they scale as typed, rounded for display. Null net carbs count as computed. Throws overflow beyond 16 bits.
double ScaledNetCarbs(const FoodValues &food, double servings);

/// The 35 values that a new entry stores, by NutrientID - 1, each rounded by its display pattern. This and the next
/// throw overflow for a value that no number can hold.
using EntryValues = std::array<double, nutrientCount>;

/// `shown` are the food list's own cells for the ten positions: what the person saw is what is stored. A custom
/// nutrient follows the servings only while it is shown with daily totals.
EntryValues NewEntryValues(const Nutrients &nutrients, const FoodValues &food, const ShownCells &shown, double servings,
                           const QLocale &locale);

/// What the ten cells of an entry show after its servings or (foodChanged) its food was changed. Positions without
/// daily totals follow a new food but never the servings. Only the shown cells change; the row's other nutrients keep
/// the values of the day the entry was made.
ShownCells AdjustNutrientValues(const Nutrients &nutrients, const FoodValues &food, const ShownCells &cells,
                                double servings, bool foodChanged, const QLocale &locale);

}  // namespace trimlog
