#include "journal/nutrient_columns.h"

#include "journal/food_values.h"

namespace trimlog {

namespace {

QString Caption(const SelectedNutrient &position, const NutrientDef &definition) {
  if (IsCustomNutrient(position.NutrientID)) return position.description;
  // Labels seldom carry trans fat, so the column always reads as an estimate.
  const QString unitForm =
      position.NutrientID == nutrient_id::transFat ? QStringLiteral("\n(Est. %1)") : QStringLiteral("\n(%1)");
  return position.description + unitForm.arg(definition.shortUnit);
}

}  // namespace

std::array<NutrientColumn, shownNutrients> SetMealFields(const Nutrients &nutrients) {
  std::array<NutrientColumn, shownNutrients> columns;
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    const SelectedNutrient &position = nutrients.SelectedNutrients[i];
    if (position.NutrientID == 0) continue;
    const NutrientDef &definition = Definition(nutrients, position.NutrientID);
    columns[i] = {definition.fieldName, Caption(position, definition), GetNutrientFormat(definition.fieldName)};
  }
  return columns;
}

}  // namespace trimlog
