#include "journal/day/exercise_totals.h"

#include <QHash>

#include "core/session/session.h"
#include "health/net_calories.h"
#include "journal/day/calorie_rules.h"
#include "journal/day/journal_day.h"
#include "journal/day/meal_texts.h"
#include "journal/day/net_calories_text.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

QString CaptionOf(const JournalDay &day, const QDate &date, const QLocale &locale) {
  // Beside the figures, not in a column of its own as below the meals.
  if (day.Kind().isSmall) return QStringLiteral("Daily Totals: ");
  return DailyTotalsCaption(day.Kind(), day.View(), date, locale);
}

QString NetOf(const Session &session, const JournalDay &day, const QDate &date, double burned) {
  if (!day.Kind().hasNetCalories || !CaloriesPosition(session.nutrients)) return {};
  NetCaloriesDay net = ReadNetCalories(session, date, date).front();
  net.burned = burned;
  return NetCaloriesText(net, session.settings.NetCaloriesBMR, session.locale);
}

QStringList ClosingRow(const QStringList &columns, const QHash<QString, QString> &texts) {
  QStringList row;
  for (const QString &column : columns) row.append(texts.value(column));
  return row;
}

}  // namespace

ExerciseTotalsText TellExercises(const Session &session, const JournalDay &day, const DayRows &rows) {
  const QDate date = DayOf(rows, day.Date());
  const ExerciseTotals totals = SumExercises(rows, date, session.locale);
  return {.date = date,
          .caption = CaptionOf(day, date, session.locale),
          .minutes = Format(totals.minutes, caloriesPattern, session.locale),
          .calories = Format(totals.calories, caloriesPattern, session.locale) + QLatin1Char(' '),
          .net = NetOf(session, day, date, totals.calories)};
}

std::vector<QStringList> ExerciseClosingRows(const JournalKind &kind, const ExerciseTotalsText &totals,
                                             const QStringList &columns, const QLocale &locale) {
  const QString caption = QStringLiteral("ActivityID");
  std::vector<QStringList> rows = {
      ClosingRow(columns, {}), ClosingRow(columns, {{caption, kind.printedTotals.arg(ShortDate(totals.date, locale))},
                                                    {QStringLiteral("Duration"), totals.minutes},
                                                    {QStringLiteral("Calories"), totals.calories.trimmed()}})};
  if (!totals.net.isEmpty()) {
    const auto [figure, formula] = SplitNetCaloriesText(totals.net);
    rows.push_back(ClosingRow(columns, {{caption, figure}}));
    rows.push_back(ClosingRow(columns, {{caption, formula}}));
  }
  return rows;
}

QString ExercisesPrintTitle(const JournalDay &day, const QLocale &locale) {
  return day.IsSingleDate() ? day.Kind().activitiesOnDate.arg(ShortDate(day.Date(), locale))
                            : day.Kind().activitiesAllDates;
}

}  // namespace trimlog
