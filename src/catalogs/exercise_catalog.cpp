#include "catalogs/exercise_catalog.h"

#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/grid/grid_source.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

bool IsBlank(const QString &text) { return text.trimmed().isEmpty(); }

bool IsWithin(const QString &text, double highest, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(text, locale);
  return number && *number >= 0 && *number <= highest;
}

QString BlankOr(const QString &what) {
  return QStringLiteral(
             "Please enter a valid number of %1 for this exercise (or leave the field blank if it does not "
             "apply).")
      .arg(what);
}

std::optional<int> CountTyped(const QString &text, const QLocale &locale) {
  const std::optional<double> number = ParseNumber(text, locale);
  if (!number) return std::nullopt;
  return Whole(*number);
}

QString StoredText(const QString &text) { return WithoutDoubleQuotes(text.trimmed()); }

}  // namespace

std::optional<ExerciseComplaint> CheckExercise(const TypedExercise &typed, const QLocale &locale) {
  constexpr double highestMinutes = 1e9;
  if (IsBlank(typed.ActivityDesc)) {
    return ExerciseComplaint{&TypedExercise::ActivityDesc, QStringLiteral("Description Required"),
                             QStringLiteral("Please enter a description for this exercise.")};
  }
  if (!IsBlank(typed.Duration) && !IsWithin(typed.Duration, highestMinutes, locale)) {
    return ExerciseComplaint{&TypedExercise::Duration, QStringLiteral("Invalid Number of Minutes"),
                             BlankOr(QStringLiteral("Minutes"))};
  }
  if (!IsWithin(typed.Calories, highestExerciseNumber, locale)) {
    return ExerciseComplaint{&TypedExercise::Calories, QStringLiteral("Invalid Number of Calories"),
                             QStringLiteral("Please enter a valid number of Calories burned for this exercise.")};
  }
  if (!IsBlank(typed.Sets) && !IsWithin(typed.Sets, highestExerciseNumber, locale)) {
    return ExerciseComplaint{&TypedExercise::Sets, QStringLiteral("Invalid Number of Sets"),
                             BlankOr(QStringLiteral("Sets"))};
  }
  if (!IsBlank(typed.Reps) && !IsWithin(typed.Reps, highestExerciseNumber, locale)) {
    return ExerciseComplaint{&TypedExercise::Reps, QStringLiteral("Invalid Number of Reps"),
                             BlankOr(QStringLiteral("Reps"))};
  }
  return std::nullopt;
}

ListedExercise ExerciseOf(const TypedExercise &typed, const QLocale &locale) {
  const std::optional<double> minutes = ParseNumber(typed.Duration, locale);
  return {.ActivityDesc = StoredText(typed.ActivityDesc),
          .Duration = minutes ? PlainText(*minutes) : QString(),
          .Pace = StoredText(typed.Pace),
          .Calories = ValueOrZero(typed.Calories, locale),
          .Amount = StoredText(typed.Amount),
          .Sets = CountTyped(typed.Sets, locale),
          .Reps = CountTyped(typed.Reps, locale)};
}

int AddExercise(Session &session, const ListedExercise &exercise) {
  const auto count = [](const std::optional<int> &number) { return number ? Value(*number) : Value(); };
  Change change(session);
  const GridSource list = ListedExercises();
  const int activityID = GetNextID(session.Data(), list.table).toInt();
  const GridStatement insert = InsertStatement(list, {{QStringLiteral("ActivityID"), activityID},
                                                      {QStringLiteral("ActivityDesc"), exercise.ActivityDesc},
                                                      {QStringLiteral("Duration"), exercise.Duration},
                                                      {QStringLiteral("Pace"), exercise.Pace},
                                                      {QStringLiteral("Calories"), exercise.Calories},
                                                      {QStringLiteral("Amount"), exercise.Amount},
                                                      {QStringLiteral("Sets"), count(exercise.Sets)},
                                                      {QStringLiteral("Reps"), count(exercise.Reps)},
                                                      {QStringLiteral("RecordTypeID"), exercise_kind::myExercises}});
  session.Data().Execute(insert.sql, insert.params);
  change.Announce({.table = Table::ActivitiesList, .keys = {activityID}});
  change.Commit();
  return activityID;
}

}  // namespace trimlog
