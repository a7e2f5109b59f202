#pragma once

#include <QString>
#include <array>
#include <vector>

#include "core/session/session.h"
#include "journal/food_values.h"

namespace trimlog {

inline constexpr int groupOfNewFoods = 18;          ///< where none is chosen
inline constexpr int foodTextLength = 255;          ///< of a description and of a serving
inline constexpr double highestNutrient = 1000000;  ///< what the grids and the food page take
inline constexpr int highestNetCarbs = 32767;       ///< net carbs are kept in 16 bits

/// A food as the full nutrient dialog shows and a new one is made.
struct FoodRecord {
  int MealID = 0;  ///< 0: not stored yet
  QString MealDesc;
  QString Amount;  ///< the serving, as text
  int MealGroupID = 0;
  std::optional<double> GIValue;
  int RecordTypeID = 2;
  FoodValues nutrients;
};

/// Reads a food; throws noCurrentRecord when there is none with that key.
FoodRecord ReadFood(Session &session, int mealID);

/// Adds a food of the user's own; returns its key. Double quotes in its texts become two single quotes. One
/// transaction.
int AddFood(Session &session, const FoodRecord &food);

/// Stores what differs from the stored food: description, group and nutrients, each as its display pattern shows it,
/// and marks the food as modified, so that updates of the shipped foods leave it alone. A food that shows no difference
/// is not touched. One transaction.
void SaveFood(Session &session, const FoodRecord &food);

/// Copies a pre-loaded food to "My Foods": description, group and the 35 nutrients; serving, glycemic value and source
/// key stay behind. Returns the new key. One transaction. Throws invalidSql for a description with a double quote.
int CopyFood(Session &session, int mealID);

/// Adds rows copied from a food grid to "My Foods", each under a key of its own and without the number of its source;
/// returns the keys. One transaction.
std::vector<qint64> PasteFoods(Session &session, const QList<QVariantMap> &rows);

/// "Copy the following food: ... to your personal "My Foods" list?"
QString CopyFoodQuestion(const QString &mealDesc);
/// What deleting one or several foods asks.
QString DeleteFoodsQuestion(int count);

}  // namespace trimlog
