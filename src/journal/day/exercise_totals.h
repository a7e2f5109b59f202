#pragma once

#include <QString>
#include <vector>

#include "journal/day_walk.h"

namespace trimlog {

class JournalDay;
class Session;
struct JournalKind;

/// What stands below the exercises of a day.
struct ExerciseTotalsText {
  QDate date;        ///< the day they are of
  QString caption;   ///< "Daily Totals  ", among all dates "Daily Totals (2/28/2026)  "
  QString minutes;   ///< "45"
  QString calories;  ///< "300 "
  QString net;       ///< the net calories in words; "" where they are not shown
};

/// The totals of the current row's day. The net calories count the exercises as they stand in the rows, a change not
/// yet saved included, and the meals as the file has them.
ExerciseTotalsText TellExercises(const Session &session, const JournalDay &day, const DayRows &rows);

/// What a list of exercises prints below its rows: a blank one, the totals, and the net calories, figure and formula.
/// One text for each of the columns printed, told by their names; captions stand under the exercise.
std::vector<QStringList> ExerciseClosingRows(const JournalKind &kind, const ExerciseTotalsText &totals,
                                             const QStringList &columns, const QLocale &locale);

/// The title over a printed list of exercises, behind the profile's name.
QString ExercisesPrintTitle(const JournalDay &day, const QLocale &locale);

}  // namespace trimlog
