#include "catalogs/exercise_lists.h"

#include "journal/day/calorie_rules.h"
#include "journal/day/listed_exercise.h"

namespace trimlog {

GridSource ExercisesToPick() {
  GridSource source = ListedExercises();
  source.order.prepend({QStringLiteral("RecordTypeID"), true});
  return source;
}

GridColumns ExerciseColumns() {
  const auto column = [](const QString &field, const QString &caption, int width, GridType type = GridType::Text) {
    return GridColumn{.name = field, .caption = caption, .field = field, .type = type, .width = width};
  };
  GridColumns columns = {
      column(QStringLiteral("ActivityDesc"), QStringLiteral("Exercise Description"), 40),
      column(QStringLiteral("Duration"), QStringLiteral("Duration"), 8, GridType::NumberText),
      column(QStringLiteral("Pace"), QStringLiteral("Pace"), 16),
      column(QStringLiteral("Calories"), QStringLiteral("Cal"), 7, GridType::Number),
      column(QStringLiteral("Amount"), QStringLiteral("Dist/Weight"), 13),
      column(QStringLiteral("Sets"), QStringLiteral("Sets"), 6, GridType::WholeNumber),
      column(QStringLiteral("Reps"), QStringLiteral("Rep"), 6, GridType::WholeNumber),
  };
  for (GridColumn &shown : columns) {
    if (shown.field == QStringLiteral("Calories")) shown.pattern = caloriesPattern;
  }
  columns.push_back({.name = QStringLiteral("RecordTypeID"),
                     .field = QStringLiteral("RecordTypeID"),
                     .type = GridType::WholeNumber,
                     .visible = false});
  return columns;
}

}  // namespace trimlog
