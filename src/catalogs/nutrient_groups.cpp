#include "catalogs/nutrient_groups.h"

#include <array>

namespace trimlog {

const QList<NutrientGroup> &NutrientGroups() {
  using namespace nutrient_id;
  static const QList<NutrientGroup> groups = {
      {QStringLiteral("Energy and protein"), {calories, protein, alcohol}},
      {QStringLiteral("Fats"), {fat, satFat, transFat, cholesterol, polyFat, monoFat}},
      {QStringLiteral("Carbohydrates"), {carbs, fiber, sugar, sugarAlcohols, netCarbs}},
      {QStringLiteral("Vitamins"), {vitaminA, vitaminC, vitaminE, vitaminB6, vitaminB12}},
      {QStringLiteral("Minerals"), {sodium, potassium, calcium, iron, zinc}},
      {QStringLiteral("Computed"),
       {calFromFat, calFromFatPct, calFromCarb, calFromCarbPct, calFromProtein, calFromProteinPct}},
      {QStringLiteral("Your own"), {28, 29, 30, 31, 32}},
  };
  return groups;
}

QString NutrientLabel(const Nutrients &nutrients, int nutrientID) {
  static const std::array<const char *, nutrientCount> labels = {"Calories (cal):",
                                                                 "Carbs (g):",
                                                                 "Total Fat (g):",
                                                                 "Protein (g):",
                                                                 "Fiber (g):",
                                                                 "Calcium (mg):",
                                                                 "Iron (mg):",
                                                                 "Sodium (mg):",
                                                                 "Potassium (mg):",
                                                                 "Zinc (mg):",
                                                                 "Vitamin A (IU):",
                                                                 "Vitamin E (mg):",
                                                                 "Vitamin B6 (mg):",
                                                                 "Vitamin B12 (mg):",
                                                                 "Vitamin C (mg):",
                                                                 "Saturated Fat (g):",
                                                                 "Mono Fat (g):",
                                                                 "Poly Fat (g):",
                                                                 "Cholesterol (mg):",
                                                                 "Sugar (g):",
                                                                 "Alcohol (g):",
                                                                 "Cal from Fat (cal):",
                                                                 "% Cal from Fat:",
                                                                 "Cal from Pro (cal):",
                                                                 "% Cal from Pro:",
                                                                 "Cal from Carb (cal):",
                                                                 "% Cal from Carb:",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "",
                                                                 "Net Carbs* (g):",
                                                                 "Sugar Alc (g):",
                                                                 "Trans Fat (g):"};
  if (IsCustomNutrient(nutrientID)) {
    const QString given = CustomNutrientName(nutrients, nutrientID);
    return (given.isEmpty() ? Definition(nutrients, nutrientID).description : given) + QLatin1Char(':');
  }
  return QString::fromLatin1(labels.at(static_cast<std::size_t>(nutrientID - 1)));
}

QList<int> ColumnsOfGroups(const QList<NutrientGroup> &groups, int columns) {
  constexpr double frame = 2;  // of a group, in rows
  double total = 0;
  for (const NutrientGroup &group : groups) total += frame + static_cast<double>(group.nutrientIDs.size());
  QList<int> places;
  double above = 0;
  for (const NutrientGroup &group : groups) {
    const double height = frame + static_cast<double>(group.nutrientIDs.size());
    places.append(static_cast<int>((above + height / 2) * columns / total));
    above += height;
  }
  return places;
}

}  // namespace trimlog
