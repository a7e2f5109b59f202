#pragma once

#include <QLocale>
#include <QString>

namespace trimlog {

/// The rules that keep the fields of a food that is being typed in step. Texts are in the locale's form; what is no
/// number counts as 0. Whole numbers round halves to even and throw overflow beyond 16 bits.

/// Net carbs from what was typed: never below "0".
QString DerivedNetCarbs(const QString &carbs, const QString &fiber, const QString &sugarAlcohols,
                        const QLocale &locale);

/// The calories that come from one nutrient, and their share of all.
struct CaloriesFrom {
  QString calories;
  QString percent;
};

/// Calories in a gram: W. O. Atwater and A. P. Bryant, "The Availability and Fuel Value of Food Materials", 1900.
inline constexpr int caloriesPerGramOfFat = 9;
inline constexpr int caloriesPerGramOfCarbs = 4;
inline constexpr int caloriesPerGramOfProtein = 4;

/// "0" and "0" when the food's calories are empty, no number or "0".
CaloriesFrom DerivedCalories(const QString &grams, int caloriesPerGram, const QString &calories, const QLocale &locale);

/// The six calorie and percent fields of fat, carbs and protein.
struct CalorieFields {
  CaloriesFrom fat;
  CaloriesFrom carbs;
  CaloriesFrom protein;
};

/// True when one of the six holds a value above 0, so that replacing them is worth a question.
bool HoldsCalorieValues(const CalorieFields &fields, const QLocale &locale);

/// All six computed; with `replaceAll` false only those that are not above 0 change.
CalorieFields CalculatedCalories(const CalorieFields &fields, const QString &fat, const QString &carbs,
                                 const QString &protein, const QString &calories, bool replaceAll,
                                 const QLocale &locale);

}  // namespace trimlog
