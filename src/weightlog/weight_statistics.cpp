#include "weightlog/weight_statistics.h"

#include <cmath>

#include "core/profiles/goal.h"
#include "core/session/failure_guard.h"
#include "core/session/session.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"
#include "weightlog/weight_log.h"

namespace trimlog {

namespace {

const QString unknown = QStringLiteral("---");

Statistics NoStatistics() { return {unknown, unknown, unknown, unknown, unknown, {}}; }

QString NumberText(double value, const QLocale &locale) {
  return Format(value, QStringLiteral("General Number"), locale);
}

/// The pace as it is shown; below a week of data it is the whole loss.
QString PaceText(double lost, const QString &lostText, double weeks, const QLocale &locale) {
  return weeks < 1 ? lostText : Format(lost / weeks, QStringLiteral("0.0"), locale);
}

/// Days left at the shown pace. A pace that shows as 0.0 projects no days at all; a projection beyond the 16-bit range
/// is none.
std::optional<int> DaysLeft(double left, double pace) {
  if (pace == 0) return 0;
  const double days = std::fabs(left / pace) * 7;
  if (!(days < 32767.5)) return std::nullopt;
  return Whole(days);
}

}  // namespace

Statistics MakeStatistics(const WeightEnds &weights, const std::optional<double> &goal, const QLocale &locale) {
  const auto &[first, last] = weights;
  Statistics shown = NoStatistics();
  if (goal && *goal < first.ThisWeight) {
    shown.Progress = std::clamp((first.ThisWeight - last.ThisWeight) / (first.ThisWeight - *goal), 0.0, 1.0);
  }
  if (goal) shown.LbsLeft = NumberText(RoundTo(LossBetween(last.ThisWeight, *goal), 1), locale);
  if (last.ThisWeight >= first.ThisWeight) {
    const double gained = RoundTo(LossBetween(last.ThisWeight, first.ThisWeight), 1);
    shown.LbsLost = last.ThisWeight == first.ThisWeight ? QStringLiteral("0")
                                                        : QStringLiteral("Gained ") + NumberText(gained, locale);
    return shown;
  }
  if (goal && *goal > last.ThisWeight) shown.LbsLeft = QStringLiteral("0");
  const double lost = RoundTo(LossBetween(first.ThisWeight, last.ThisWeight), 1);
  shown.LbsLost = NumberText(lost, locale);
  const double weeks = static_cast<double>(first.ThisDate.daysTo(last.ThisDate)) / 7;
  shown.LbsPerWeek = PaceText(lost, shown.LbsLost, weeks, locale);
  if (!goal) return shown;
  const std::optional<int> days = DaysLeft(ValueOrZero(shown.LbsLeft, locale), ValueOrZero(shown.LbsPerWeek, locale));
  if (!days) return shown;
  shown.DaysLeft = QString::number(*days);
  shown.ProjDate = ShortDate(last.ThisDate.addDays(*days), locale);
  return shown;
}

void UpdateStats(Session &session) {
  Guarded(session,
          {QStringLiteral("basMain"), QStringLiteral("UpdateStats"), QStringLiteral("Error Updating Statistics"),
           QStringLiteral("An error occurred while updating your weight loss statistics.")},
          [&session] {
            const std::optional<WeightEnds> weights = ReadWeightEnds(session);
            session.profile.FirstWeightDate = weights ? weights->first.ThisDate : QDate();
            session.profile.LastWeightDate = weights ? weights->last.ThisDate : QDate();
            session.profile.statistics =
                weights ? MakeStatistics(*weights, ReadGoal(session), session.locale) : NoStatistics();
          });
  session.changes.AnnounceStatistics();
}

}  // namespace trimlog
