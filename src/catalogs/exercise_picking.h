#pragma once

#include <QDate>
#include <QString>

#include "core/session/session.h"
#include "journal/day/day_records.h"
#include "journal/day/listed_exercise.h"

namespace trimlog {

/// What stands in the dialog when an exercise is added to a day.
struct ExercisePicked {
  int ActivityID = 0;
  QDate date;
  QString minutes;        ///< as typed; "" where they do not apply
  bool byWeight = false;  ///< the calories follow the weight of the day
};

/// Can the text stand as minutes? Nothing, a word or a negative number cannot.
bool IsMinutes(const QString &text, const QLocale &locale);
/// The minutes of a listed exercise as a field proposes them, in the locale's form; "" where it has none.
QString ProposedMinutes(const QString &listed, const QLocale &locale);

/// The entry of what was picked. Throws noCurrentRecord for an exercise that is gone, overflow for calories that no
/// number can hold.
ActivityEntry EntryOf(const Session &session, const ExercisePicked &picked);

/// "300 calories burned", as EntryOf would store them.
QString BurnedText(const ActivityEntry &entry, const QLocale &locale);

}  // namespace trimlog
