#include "catalogs/food_derived.h"

#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

bool IsAboveZero(const QString &text, const QLocale &locale) { return ValueOrZero(text, locale) > 0; }

CaloriesFrom Merged(const CaloriesFrom &present, const CaloriesFrom &computed, bool replaceAll, const QLocale &locale) {
  return {replaceAll || !IsAboveZero(present.calories, locale) ? computed.calories : present.calories,
          replaceAll || !IsAboveZero(present.percent, locale) ? computed.percent : present.percent};
}

}  // namespace

QString DerivedNetCarbs(const QString &carbs, const QString &fiber, const QString &sugarAlcohols,
                        const QLocale &locale) {
  const int net = Whole(ValueOrZero(carbs, locale) - ValueOrZero(fiber, locale) - ValueOrZero(sugarAlcohols, locale));
  return QString::number(std::max(net, 0));
}

CaloriesFrom DerivedCalories(const QString &grams, int caloriesPerGram, const QString &calories,
                             const QLocale &locale) {
  const double all = ValueOrZero(calories, locale);
  if (all == 0) return {QStringLiteral("0"), QStringLiteral("0")};
  const int from = Whole(ValueOrZero(grams, locale) * caloriesPerGram);
  return {QString::number(from), QString::number(Whole(from / all * 100))};
}

bool HoldsCalorieValues(const CalorieFields &fields, const QLocale &locale) {
  for (const CaloriesFrom &from : {fields.fat, fields.carbs, fields.protein}) {
    if (IsAboveZero(from.calories, locale) || IsAboveZero(from.percent, locale)) return true;
  }
  return false;
}

CalorieFields CalculatedCalories(const CalorieFields &fields, const QString &fat, const QString &carbs,
                                 const QString &protein, const QString &calories, bool replaceAll,
                                 const QLocale &locale) {
  return {
      Merged(fields.fat, DerivedCalories(fat, caloriesPerGramOfFat, calories, locale), replaceAll, locale),
      Merged(fields.carbs, DerivedCalories(carbs, caloriesPerGramOfCarbs, calories, locale), replaceAll, locale),
      Merged(fields.protein, DerivedCalories(protein, caloriesPerGramOfProtein, calories, locale), replaceAll, locale)};
}

}  // namespace trimlog
