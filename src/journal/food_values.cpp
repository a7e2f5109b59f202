#include "journal/food_values.h"

namespace trimlog {

namespace {

std::size_t IndexOf(int nutrientID) {
  if (nutrientID < 1 || nutrientID > nutrientCount) {
    throw Error(error_number::outOfBounds, QStringLiteral("There is no nutrient %1.").arg(nutrientID));
  }
  return static_cast<std::size_t>(nutrientID - 1);
}

}  // namespace

FoodValues FoodValues::Read(const Recordset &row, const Nutrients &nutrients) {
  FoodValues food;
  for (std::size_t index = 0; index < nutrientCount; ++index) {
    const Value value = row.Field(nutrients.NutrientDefs[index].fieldName);
    if (!value.isNull()) food.values_[index] = value.toDouble();
  }
  return food;
}

std::optional<double> FoodValues::At(int nutrientID) const { return values_[IndexOf(nutrientID)]; }

void FoodValues::Set(int nutrientID, std::optional<double> value) { values_[IndexOf(nutrientID)] = value; }

}  // namespace trimlog
