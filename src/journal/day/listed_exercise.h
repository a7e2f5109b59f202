#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "platform/grid/grid_source.h"

namespace trimlog {

class GridRowEdit;
class Session;
struct ActivityEntry;

/// Kinds of row in activities_list.
namespace exercise_kind {
inline constexpr int hidden = 0;  ///< in no list
inline constexpr int preLoaded = 1;
inline constexpr int myExercises = 2;
}  // namespace exercise_kind

inline constexpr int exerciseTextLength = 255;  ///< of a description, a pace, a distance or weight

/// An exercise of the list. Its calories are those of its minutes, for a body of the reference weight.
struct ListedExercise {
  int ActivityID = 0;  ///< 0: not stored yet
  QString ActivityDesc;
  QString Duration;  ///< minutes in plain form; "" where they do not apply
  QString Pace;
  double Calories = 0;
  QString Amount;  ///< distance or weight
  std::optional<int> Sets;
  std::optional<int> Reps;
  int RecordTypeID = exercise_kind::myExercises;
};

/// Every exercise that may be chosen, by name.
GridSource ListedExercises();

/// Nothing when there is no exercise with that key (any more).
std::optional<ListedExercise> ReadExercise(const Session &session, int activityID);

/// The list's minutes; 0 where it has none.
double ListedMinutes(const ListedExercise &exercise);

/// What an entry of the exercise stores for a day: the list's calories, where `byWeight` those of the body on that day,
/// times the minutes done over the list's; without minutes, here or there, the calories stand. Unrounded after the
/// body's. Throws overflow for a body's calories beyond 16 bits.
ActivityEntry EntryOf(const Session &session, const ListedExercise &exercise, const QDate &date,
                      std::optional<double> minutes, bool byWeight);

/// An entry takes another exercise: all its values come from the list, the calories as EntryOf makes them. An exercise
/// that is gone changes nothing. Throws overflow before anything is changed.
void TakeOverExercise(const Session &session, GridRowEdit &entry, bool byWeight);

/// The minutes of an entry were changed: its calories follow, by the minutes that are stored. Throws overflow.
void AdjustCaloriesToMinutes(GridRowEdit &entry);

}  // namespace trimlog
