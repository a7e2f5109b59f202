#include "core/data/tables.h"

namespace trimlog {

QString TableName(Table table) {
  switch (table) {
    case Table::Activities:
      return QStringLiteral("activities");
    case Table::ActivitiesList:
      return QStringLiteral("activities_list");
    case Table::Links:
      return QStringLiteral("links");
    case Table::Meals:
      return QStringLiteral("meals");
    case Table::MealsList:
      return QStringLiteral("meals_list");
    case Table::Measurements:
      return QStringLiteral("measurements");
    case Table::Notes:
      return QStringLiteral("notes");
    case Table::NutritionTargets:
      return QStringLiteral("nutrition_targets");
    case Table::OtherDailyData:
      return QStringLiteral("other_daily_data");
    case Table::PalmSelectedMeals:
      return QStringLiteral("palm_selected_meals");
    case Table::People:
      return QStringLiteral("people");
    case Table::RecipeDetail:
      return QStringLiteral("recipe_detail");
    case Table::Recipes:
      return QStringLiteral("recipes");
    case Table::Rewards:
      return QStringLiteral("rewards");
    case Table::SelectedNutrients:
      return QStringLiteral("selected_nutrients");
    case Table::SeravaJournal:
      return QStringLiteral("serava_journal");
    case Table::WeightLoss:
      return QStringLiteral("weight_loss");
  }
  return {};
}

}  // namespace trimlog
