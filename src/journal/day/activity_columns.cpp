#include "journal/day/activity_columns.h"

#include "journal/day/calorie_rules.h"
#include "journal/day/listed_exercise.h"
#include "platform/grid/grid_lookup.h"

namespace trimlog {

namespace {

constexpr int highestCount = 32767;

QString NotNegative(const Value &value) {
  return value.toDouble() < 0 ? QStringLiteral("Minutes cannot be negative.") : QString();
}

GridColumn CountColumn(const QString &field, const QString &caption) {
  return {.name = field,
          .caption = caption,
          .field = field,
          .type = GridType::WholeNumber,
          .width = 5,
          .editable = true,
          .mend = MendWith(0)};
}

std::shared_ptr<const GridLookup> ExerciseLookup() {
  const auto column = [](const QString &field, const QString &caption, int width, GridType type = GridType::Text) {
    return GridColumn{.name = field, .caption = caption, .field = field, .type = type, .width = width};
  };
  return std::make_shared<const GridLookup>(
      GridLookup{.source = ListedExercises(),
                 .text = QStringLiteral("ActivityDesc"),
                 .columns = {column(QStringLiteral("ActivityDesc"), QStringLiteral("Exercise Description"), 40),
                             column(QStringLiteral("Duration"), QStringLiteral("Duration"), 8, GridType::NumberText),
                             column(QStringLiteral("Pace"), QStringLiteral("Pace"), 14),
                             column(QStringLiteral("Calories"), QStringLiteral("Cal"), 7, GridType::Number),
                             column(QStringLiteral("Amount"), QStringLiteral("Dist/Weight"), 11),
                             column(QStringLiteral("Sets"), QStringLiteral("Sets"), 5, GridType::WholeNumber),
                             column(QStringLiteral("Reps"), QStringLiteral("Rep"), 5, GridType::WholeNumber)}});
}

}  // namespace

GridColumns ActivityColumns(bool small) {
  return {
      {.name = QStringLiteral("ActivityID"),
       .caption = QStringLiteral("Exercise Description"),
       .field = QStringLiteral("ActivityID"),
       .type = GridType::Lookup,
       .width = small ? 24 : 32,
       .editable = true,
       .dropDown = QStringLiteral("ddnActivitiesList"),
       .lookup = ExerciseLookup(),
       .textField = QStringLiteral("activities_list.ActivityDesc"),
       .savesAtOnce = true},
      {.name = QStringLiteral("Duration"),
       .caption = QStringLiteral("Duration"),
       .field = QStringLiteral("Duration"),
       .type = GridType::NumberText,
       .width = 8,
       .editable = true,
       .savesAtOnce = true,
       .mend = MendWithFormer(),
       .validate = NotNegative},
      {.name = QStringLiteral("Pace"),
       .caption = QStringLiteral("Pace"),
       .field = QStringLiteral("Pace"),
       .width = small ? 9 : 14,
       .editable = true,
       .maxLength = exerciseTextLength},
      {.name = QStringLiteral("Calories"),
       .caption = QStringLiteral("Cal"),
       .field = QStringLiteral("Calories"),
       .type = GridType::Number,
       .width = 8,
       .editable = true,
       .pattern = caloriesPattern,
       .mend = MendWith(0.0)},
      {.name = QStringLiteral("Amount"),
       .caption = QStringLiteral("Dist/Weight"),
       .field = QStringLiteral("Amount"),
       .width = 12,
       .editable = true,
       .maxLength = exerciseTextLength},
      CountColumn(QStringLiteral("Sets"), QStringLiteral("Sets")),
      CountColumn(QStringLiteral("Reps"), QStringLiteral("Rep")),
  };
}

QString ComplaintAboutActivity(const std::function<Value(const QString &field)> &field) {
  for (const char *count : {"Sets", "Reps"}) {
    if (std::abs(field(QLatin1String(count)).toDouble()) <= highestCount) continue;
    return QStringLiteral("%1 cannot be more than 32,767.").arg(QLatin1String(count));
  }
  return {};
}

}  // namespace trimlog
