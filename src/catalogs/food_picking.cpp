#include "catalogs/food_picking.h"

#include "catalogs/food_catalog.h"
#include "platform/text/text_format.h"

namespace trimlog {

FoodPicking PickingForDay(Session &session, const EntryOpening &opening) {
  FoodPicking picking;
  picking.caption = opening.kind.addMealCaption;
  picking.header = opening.kind.addMealHeader;
  picking.fixedDate = opening.kind.hasFixedDate;
  picking.date = opening.date;
  picking.MealTypeID = opening.MealTypeID;
  picking.add = [&session, &opening](const MealEntry &entry) {
    const int recordID = AddRecMeal(session, opening.kind.entries, entry);
    if (opening.stored) opening.stored(recordID, entry.date);
    return true;
  };
  return picking;
}

std::optional<PickRefusal> AddRecValidate(const FoodPicked &picked, bool forDay, const QLocale &locale) {
  if (forDay && !picked.date.isValid()) {
    return PickRefusal{PickedField::Date, QStringLiteral("Invalid Date"),
                       QStringLiteral("Please choose or enter a valid date for this food or meal.")};
  }
  const std::optional<double> servings = ParseNumber(picked.servings, locale);
  if (!servings || *servings < 0) {
    return PickRefusal{PickedField::Servings, QStringLiteral("Invalid Number of Servings"),
                       QStringLiteral("Please enter a number of servings for this food.  The default number of "
                                      "servings is 1.")};
  }
  return std::nullopt;
}

MealEntry EntryOf(Session &session, const FoodPicked &picked) {
  const FoodRecord food = ReadFood(session, picked.MealID);
  const double servings = ParseNumber(picked.servings, session.locale).value_or(0);
  return {.date = picked.date,
          .MealTypeID = picked.MealTypeID,
          .MealID = picked.MealID,
          .Amount = picked.servings,
          .values = NewEntryValues(session.nutrients, food.nutrients, picked.shown, servings, session.locale)};
}

QString AddedText(const QString &food, const QString &servings, const QString &meal, const QString &date) {
  const QString what = QStringLiteral("%1 x %2").arg(servings.trimmed(), food);
  if (meal.isEmpty()) return QStringLiteral("Added: %1").arg(what);
  return QStringLiteral("Added to %1 of %2: %3").arg(meal, date, what);
}

}  // namespace trimlog
