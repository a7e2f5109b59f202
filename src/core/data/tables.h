#pragma once

#include <QString>

namespace trimlog {

/// The tables that people's data stand in; work tables and the samples' pristine rows are nobody's to follow.
enum class Table {
  Activities,
  ActivitiesList,
  Links,
  Meals,
  MealsList,
  Measurements,
  Notes,
  NutritionTargets,
  OtherDailyData,
  PalmSelectedMeals,
  People,
  RecipeDetail,
  Recipes,
  Rewards,
  SelectedNutrients,
  SeravaJournal,
  WeightLoss,
};

/// The table's name in the data file.
QString TableName(Table table);

}  // namespace trimlog
