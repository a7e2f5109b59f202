#include "catalogs/food_columns.h"

#include "catalogs/food_catalog.h"
#include "catalogs/food_lists.h"
#include "core/data/data_access.h"
#include "journal/nutrient_columns.h"
#include "platform/grid/grid_blocks.h"
#include "platform/grid/grid_row_edit.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

QString CheckDescription(const Value &value) {
  if (!value.toString().trimmed().isEmpty()) return {};
  return QStringLiteral("Please enter a description for this food or meal.");
}

QString CheckNutrient(const Value &value) {
  if (value.isNull()) return {};
  const double number = value.toDouble();
  if (number >= 0 && number <= highestNutrient) return {};
  return QStringLiteral("Please enter a number from 0 to 1,000,000.");
}

QString CheckNetCarbs(const Value &value) {
  if (value.isNull() || (value.toDouble() >= 0 && value.toDouble() <= highestNetCarbs)) return {};
  return QStringLiteral("Please enter a number from 0 to 32,767.");
}

GridColumn GroupColumn(Session &session, const QString &dropDown) {
  GridColumn column{.name = QStringLiteral("MealGroupID"),
                    .caption = QStringLiteral("Food Group"),
                    .field = QStringLiteral("MealGroupID"),
                    .type = GridType::Choice,
                    .width = 20,
                    .editable = true,
                    .dropDown = dropDown};
  for (const FoodGroup &group : FoodGroups(session)) column.choices.append({group.key, group.text});
  return column;
}

GridColumn NutrientGridColumn(int position, const NutrientColumn &nutrient) {
  return {.name = QStringLiteral("Nut%1").arg(position),
          .caption = nutrient.caption,
          .field = nutrient.dataField,
          .type = GridType::Number,
          .width = 9,
          .editable = true,
          .visible = !nutrient.dataField.isEmpty(),
          .pattern = nutrient.pattern,
          .validate = nutrient.dataField == QStringLiteral("NetCarbs") ? CheckNetCarbs : CheckNutrient};
}

GridColumn HiddenColumn(const QString &field, GridType type) {
  return {.name = field, .field = field, .type = type, .visible = false};
}

/// The column whose field a sort key names; none for the order by name.
const GridColumn *SortedColumn(const GridColumns &columns, const QString &sort) {
  const QString field = sort.startsWith(QLatin1Char('-')) ? sort.mid(1) : sort;
  for (const GridColumn &column : columns) {
    if (column.field == field) return &column;
  }
  return nullptr;
}

bool HoldsPreLoadedFood(Session &session, const std::vector<qint64> &keys) {
  constexpr size_t keysInOneQuestion = 500;
  bool held = false;
  InBlocks(keys, keysInOneQuestion, [&](const std::vector<qint64> &block) {
    if (held) return;
    QStringList list;
    for (const qint64 key : block) list.append(QString::number(key));
    held = !GetDataValue(session.Data(), QStringLiteral("MealID"), QStringLiteral("meals_list"),
                         QStringLiteral("RecordTypeID=%1 AND MealID IN (%2)")
                             .arg(food_kind::preLoaded)
                             .arg(list.join(QStringLiteral(", "))))
                .isEmpty();
  });
  return held;
}

}  // namespace

GridColumns FoodColumns(Session &session, const QString &groupsDropDown) {
  GridColumns columns = {
      {.name = QStringLiteral("Qlt"), .visible = false},  // the head of a row marks it
      {.name = QStringLiteral("MealDesc"),
       .caption = QStringLiteral("Food Description"),
       .field = QStringLiteral("MealDesc"),
       .width = 44,
       .editable = true,
       .maxLength = foodTextLength,
       .validate = CheckDescription},
      {.name = QStringLiteral("Amount"),
       .caption = QStringLiteral("Serving Size"),
       .field = QStringLiteral("Amount"),
       .width = 18,
       .editable = true,
       .maxLength = foodTextLength},
      GroupColumn(session, groupsDropDown),
      {.name = QStringLiteral("GIValue"),
       .caption = QStringLiteral("GI\nValue"),
       .field = QStringLiteral("GIValue"),
       .type = GridType::Number,
       .width = 7,
       .editable = true,
       .validate = CheckNutrient},
  };
  int position = 0;
  for (const NutrientColumn &nutrient : SetMealFields(session.nutrients)) {
    columns.push_back(NutrientGridColumn(++position, nutrient));
  }
  columns.push_back(HiddenColumn(QStringLiteral("IsModified"), GridType::Check));
  columns.push_back({.name = QStringLiteral("Dummy"), .width = 2});
  columns.push_back(HiddenColumn(QStringLiteral("RecordTypeID"), GridType::WholeNumber));
  columns.push_back(HiddenColumn(QStringLiteral("MealID"), GridType::WholeNumber));
  return columns;
}

bool IsSortShown(const GridColumns &columns, const QString &sort) { return SortedColumn(columns, sort) != nullptr; }

QString SortedByText(const GridColumns &columns, const QString &sort) {
  const GridColumn *column = SortedColumn(columns, sort);
  if (!column) return {};
  const QString caption = QString(column->caption).replace(QLatin1Char('\n'), QLatin1Char(' '));
  return sort.startsWith(QLatin1Char('-')) ? caption + QStringLiteral(" (descending)") : caption;
}

QString PrepareEditedFood(const Nutrients &nutrients, GridRowEdit &row) {
  if (!row.HasChanges()) return {};
  for (const QString &field : {QStringLiteral("MealDesc"), QStringLiteral("Amount")}) {
    if (row.IsChanged(field)) row.Set(field, WithoutDoubleQuotes(row.Get(field).toString()));
  }
  for (const NutrientDef &definition : nutrients.NutrientDefs) {
    if (!row.IsChanged(definition.fieldName) || row.Get(definition.fieldName).isNull()) continue;
    const QString shown = Format(row.Get(definition.fieldName).toDouble(), GetNutrientFormat(definition.fieldName));
    row.Set(definition.fieldName, Val(shown));
  }
  if (row.HasChanges()) row.Set(QStringLiteral("IsModified"), true);
  return {};
}

bool IsPreLoadedFood(const std::function<Value(const QString &field)> &field) {
  return field(QStringLiteral("RecordTypeID")).toInt() == food_kind::preLoaded;
}

bool ConfirmDeleteFoods(Session &session, const std::vector<qint64> &keys) {
  if (HoldsPreLoadedFood(session, keys)) {
    session.boxes.Critical(QStringLiteral("Unable to Delete Meal"),
                           QStringLiteral("The Pre-Loaded meals cannot be deleted."));
    return false;
  }
  return session.boxes.Ask(QStringLiteral("Warning: Delete Food?"), DeleteFoodsQuestion(static_cast<int>(keys.size())),
                           BoxButton::No);
}

FailureExit FoodGridFailure(GridAction action, const QString &loadProcedure, bool forPicking) {
  FailureExit exit{forPicking ? QStringLiteral("frmAddMeal") : QStringLiteral("frmSetupFoods"), {}, {}, {}, true};
  switch (action) {
    case GridAction::Load:
      exit.procedure = loadProcedure;
      exit.title = QStringLiteral("Error Loading Setup Info");
      exit.text = QStringLiteral("An error occurred while loading your setup information.");
      exit.appendDescription = false;
      break;
    case GridAction::Save:
      exit.procedure = QStringLiteral("grdMealsList_AfterUpdate");
      exit.title = QStringLiteral("Error Saving Food");
      exit.text = QStringLiteral("An error occurred while saving this food.  ");
      break;
    case GridAction::Delete:
      exit.procedure = QStringLiteral("cmdDeleteMeal_Click");
      exit.title = QStringLiteral("Error Deleting Food");
      exit.text = QStringLiteral("An error occurred while deleting.  No food was deleted.  ");
      break;
    case GridAction::Paste:
      exit.procedure = QStringLiteral("PasteGridRow");
      exit.title = QStringLiteral("Error Pasting Foods");
      exit.text = QStringLiteral("An error occurred while pasting.  No food was added.  ");
      break;
  }
  return exit;
}

}  // namespace trimlog
