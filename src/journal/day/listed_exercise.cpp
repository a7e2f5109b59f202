#include "journal/day/listed_exercise.h"

#include "core/session/session.h"
#include "journal/day/calorie_rules.h"
#include "journal/day/day_records.h"
#include "platform/grid/grid_row_edit.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

std::optional<int> IntegerOrNothing(const Recordset &row, const QString &field) {
  if (row.Text(field).isEmpty()) return std::nullopt;
  return row.Integer(field);
}

/// Sets and repetitions; Null where they do not apply.
Value CountOf(const std::optional<int> &count) { return count ? Value(*count) : Value(); }

double MinutesIn(const Value &duration) { return ValueOrZero(duration.toString()); }

double CaloriesAtStart(const Session &session, const ListedExercise &exercise, const QDate &date, bool byWeight) {
  return byWeight ? CaloriesForBody(exercise.Calories, BodyWeightFactor(session, date)) : exercise.Calories;
}

}  // namespace

GridSource ListedExercises() {
  return {.table = QStringLiteral("activities_list"),
          .key = QStringLiteral("ActivityID"),
          .where = QStringLiteral("((activities_list.RecordTypeID) <> %1)").arg(exercise_kind::hidden),
          .order = {{QStringLiteral("ActivityDesc")}}};
}

std::optional<ListedExercise> ReadExercise(const Session &session, int activityID) {
  const GridStatement statement = RowsStatement(ListedExercises(), {}, {activityID});
  const Recordset row = session.Data().OpenRecordset(statement.sql, statement.params, RecordsetKind::Forward);
  if (row.Eof()) return std::nullopt;
  return ListedExercise{.ActivityID = activityID,
                        .ActivityDesc = row.Text(QStringLiteral("ActivityDesc")),
                        .Duration = row.Text(QStringLiteral("Duration")),
                        .Pace = row.Text(QStringLiteral("Pace")),
                        .Calories = row.Number(QStringLiteral("Calories")),
                        .Amount = row.Text(QStringLiteral("Amount")),
                        .Sets = IntegerOrNothing(row, QStringLiteral("Sets")),
                        .Reps = IntegerOrNothing(row, QStringLiteral("Reps")),
                        .RecordTypeID = row.Integer(QStringLiteral("RecordTypeID"))};
}

double ListedMinutes(const ListedExercise &exercise) { return MinutesIn(exercise.Duration); }

ActivityEntry EntryOf(const Session &session, const ListedExercise &exercise, const QDate &date,
                      std::optional<double> minutes, bool byWeight) {
  const double factor = minutes ? MinutesFactor(ListedMinutes(exercise), *minutes) : 1;
  return {.date = date,
          .ActivityID = exercise.ActivityID,
          .Duration = minutes ? PlainText(*minutes) : QString(),
          .Pace = exercise.Pace,
          .Calories = CaloriesTimes(CaloriesAtStart(session, exercise, date, byWeight), factor),
          .Amount = exercise.Amount,
          .Sets = exercise.Sets,
          .Reps = exercise.Reps};
}

void TakeOverExercise(const Session &session, GridRowEdit &entry, bool byWeight) {
  const auto exercise = ReadExercise(session, entry.Get(QStringLiteral("ActivityID")).toInt());
  if (!exercise) return;
  const QDate date = entry.Get(QStringLiteral("ThisDate")).toDate();
  const double calories = CaloriesAtStart(session, *exercise, date, byWeight);  // may throw: before anything is set
  entry.Set(QStringLiteral("Duration"), exercise->Duration);
  entry.Set(QStringLiteral("Pace"), exercise->Pace);
  entry.Set(QStringLiteral("Calories"), calories);
  entry.Set(QStringLiteral("Amount"), exercise->Amount);
  entry.Set(QStringLiteral("Sets"), CountOf(exercise->Sets));
  entry.Set(QStringLiteral("Reps"), CountOf(exercise->Reps));
}

void AdjustCaloriesToMinutes(GridRowEdit &entry) {
  const QString duration = QStringLiteral("Duration");
  const QString calories = QStringLiteral("Calories");
  const double factor = MinutesFactor(MinutesIn(entry.StoredValue(duration)), MinutesIn(entry.Get(duration)));
  entry.Set(calories, CaloriesTimes(entry.Get(calories).toDouble(), factor));
}

}  // namespace trimlog
