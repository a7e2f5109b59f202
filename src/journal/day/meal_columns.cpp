#include "journal/day/meal_columns.h"

#include "core/data/nutrients.h"
#include "core/session/session.h"
#include "journal/day/meal_types.h"
#include "journal/nutrient_columns.h"
#include "platform/grid/grid_lookup.h"
#include "platform/grid/grid_row_edit.h"

namespace trimlog {

namespace {

constexpr int foodWidth = 36;
constexpr int smallFoodWidth = 24;

QString CheckServings(const Value &value) {
  return value.toDouble() < 0 ? QStringLiteral("Please type a number of servings.") : QString();
}

/// The foods that an entry can be of: all that are listed.
std::shared_ptr<const GridLookup> ListedFoods() {
  return std::make_shared<const GridLookup>(
      GridLookup{.source = {.table = QStringLiteral("meals_list"),
                            .key = QStringLiteral("MealID"),
                            .where = QStringLiteral("((meals_list.RecordTypeID) <> 0)"),
                            .orderAs = {{QStringLiteral("MealDesc"), QStringLiteral("SortKey(meals_list.MealDesc)")}},
                            .order = {{QStringLiteral("MealDesc")}}},
                 .text = QStringLiteral("MealDesc"),
                 .columns = {{.name = QStringLiteral("MealDesc"),
                              .caption = QStringLiteral("Food Description"),
                              .field = QStringLiteral("MealDesc"),
                              .width = 50},
                             {.name = QStringLiteral("Amount"),
                              .caption = QStringLiteral("Serving Size"),
                              .field = QStringLiteral("Amount"),
                              .width = 20}}});
}

GridColumn MealTypeColumn(Session &session) {
  GridColumn column{.name = QStringLiteral("MealTypeID"),
                    .caption = QStringLiteral("Meal"),
                    .field = QStringLiteral("MealTypeID"),
                    .type = GridType::Choice,
                    .width = 13,
                    .editable = true,
                    .dropDown = QStringLiteral("ddnMealTypes"),
                    .savesAtOnce = true};
  for (const MealType &type : ReadMealTypes(session.Data())) {
    column.choices.append({type.MealTypeID, type.MealTypeDesc});
  }
  return column;
}

GridColumn NutrientCell(int position, const NutrientColumn &nutrient) {
  return {.name = QStringLiteral("Nut%1").arg(position),
          .caption = nutrient.caption,
          .field = nutrient.dataField,
          .type = GridType::Number,
          .width = 8,
          .editable = true,
          .visible = !nutrient.dataField.isEmpty(),
          .pattern = nutrient.pattern,
          .savesAtOnce = nutrient.dataField != QStringLiteral("Calories"),
          .mend = MendWith(0.0)};
}

}  // namespace

QStringList NutrientColumnNames() {
  QStringList names;
  for (int position = 1; position <= shownNutrients; ++position) names.append(QStringLiteral("Nut%1").arg(position));
  return names;
}

GridColumns MealColumns(Session &session, bool small) {
  GridColumns columns = {
      MealTypeColumn(session),
      {.name = QStringLiteral("MealID"),
       .caption = QStringLiteral("Food Description"),
       .field = QStringLiteral("MealID"),
       .type = GridType::Lookup,
       .width = small ? smallFoodWidth : foodWidth,
       .editable = true,
       .dropDown = QStringLiteral("ddnMealsList"),
       .lookup = ListedFoods(),
       .textField = QStringLiteral("meals_list.MealDesc"),
       .savesAtOnce = true},
      {.name = QStringLiteral("Amount"),
       .caption = QStringLiteral("# Srv"),
       .field = QStringLiteral("Amount"),
       .type = GridType::NumberText,
       .width = 6,
       .editable = true,
       .savesAtOnce = true,
       .mend = MendWith(QStringLiteral("1")),
       .validate = CheckServings},
  };
  int position = 0;
  for (const NutrientColumn &nutrient : SetMealFields(session.nutrients)) {
    columns.push_back(NutrientCell(++position, nutrient));
  }
  columns.push_back({.name = QStringLiteral("GIValue"),
                     .caption = QStringLiteral("GI\nValue"),
                     .field = QStringLiteral("GIValue"),
                     .type = GridType::Number,
                     .width = 6,
                     .editable = true,
                     .savesAtOnce = true});
  return columns;
}

QString CheckMealRow(const GridRowEdit &row) {
  constexpr double most = 32767;  // net carbs are kept in 16 bits
  const double netCarbs = row.Get(QStringLiteral("NetCarbs")).toDouble();
  if (std::abs(netCarbs) <= most) return {};
  return QStringLiteral("Net carbs can be at most 32,767.");
}

}  // namespace trimlog
