#pragma once

#include <QString>
#include <optional>

#include "core/session/session.h"
#include "journal/day/listed_exercise.h"

namespace trimlog {

inline constexpr int highestExerciseNumber = 32767;  ///< of calories, sets and repetitions: kept or counted in 16 bits

/// What was typed for an exercise of one's own; numbers as texts in the person's locale.
struct TypedExercise {
  QString ActivityDesc;
  QString Duration;  ///< minutes
  QString Pace;
  QString Calories;
  QString Amount;
  QString Sets;
  QString Reps;
};

/// Why a typed exercise is no exercise, and where.
struct ExerciseComplaint {
  QString TypedExercise::*field;
  QString title;
  QString text;
};
/// The first complaint, in the order of the fields; nothing for one that can be stored. Calories must be a number;
/// minutes, sets and repetitions may be left out.
std::optional<ExerciseComplaint> CheckExercise(const TypedExercise &typed, const QLocale &locale);

/// A checked exercise as it is stored. Double quotes in its texts become two single quotes.
ListedExercise ExerciseOf(const TypedExercise &typed, const QLocale &locale);

/// Adds an exercise of the user's own; returns its key. One transaction.
int AddExercise(Session &session, const ListedExercise &exercise);

}  // namespace trimlog
