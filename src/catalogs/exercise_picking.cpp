#include "catalogs/exercise_picking.h"

#include "journal/day/calorie_rules.h"
#include "platform/text/text_format.h"

namespace trimlog {

bool IsMinutes(const QString &text, const QLocale &locale) {
  const std::optional<double> minutes = ParseNumber(text, locale);
  return minutes && *minutes >= 0;
}

QString ProposedMinutes(const QString &listed, const QLocale &locale) {
  const std::optional<double> minutes = ParseNumber(listed);
  return minutes ? Format(*minutes, QStringLiteral("General Number"), locale) : QString();
}

ActivityEntry EntryOf(const Session &session, const ExercisePicked &picked) {
  const std::optional<ListedExercise> exercise = ReadExercise(session, picked.ActivityID);
  if (!exercise) {
    throw Error(error_number::noCurrentRecord, QStringLiteral("This exercise has been deleted meanwhile."));
  }
  return EntryOf(session, *exercise, picked.date, ParseNumber(picked.minutes, session.locale), picked.byWeight);
}

QString BurnedText(const ActivityEntry &entry, const QLocale &locale) {
  return QStringLiteral("%1 calories burned").arg(Format(entry.Calories, caloriesPattern, locale));
}

}  // namespace trimlog
