#include "weightlog/weight_statistics.h"

#include <cmath>

#include "core/session/failure_guard.h"
#include "core/session/session.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString unknown = QStringLiteral("---");

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

std::optional<double> ReadGoal(const Session &session) {
  const Recordset people =
      session.Data().OpenRecordset(QStringLiteral("SELECT people.Goal FROM people WHERE PersonID=?;"),
                                   {session.profile.CurrentPersonID.toInt()}, RecordsetKind::Forward);
  return people.Eof() ? std::nullopt : ParseNumber(people.Text(QStringLiteral("Goal")), session.locale);
}

}  // namespace

Statistics MakeStatistics(const WeightRow &first, const WeightRow &last, const std::optional<double> &goal,
                          const QLocale &locale) {
  Statistics shown{unknown, unknown, unknown, unknown, unknown};
  if (goal) shown.LbsLeft = NumberText(RoundTo(LossBetween(last.weight, *goal), 1), locale);
  if (last.weight >= first.weight) {
    const double gained = RoundTo(LossBetween(last.weight, first.weight), 1);
    shown.LbsLost =
        last.weight == first.weight ? QStringLiteral("0") : QStringLiteral("Gained ") + NumberText(gained, locale);
    return shown;
  }
  if (goal && *goal > last.weight) shown.LbsLeft = QStringLiteral("0");
  const double lost = RoundTo(LossBetween(first.weight, last.weight), 1);
  shown.LbsLost = NumberText(lost, locale);
  const double weeks = static_cast<double>(first.date.daysTo(last.date)) / 7;
  shown.LbsPerWeek = PaceText(lost, shown.LbsLost, weeks, locale);
  if (!goal) return shown;
  const std::optional<int> days = DaysLeft(ValueOrZero(shown.LbsLeft, locale), ValueOrZero(shown.LbsPerWeek, locale));
  if (!days) return shown;
  shown.DaysLeft = QString::number(*days);
  shown.ProjDate = ShortDate(last.date.addDays(*days), locale);
  return shown;
}

void UpdateStats(Session &session) {
  Guarded(session,
          {QStringLiteral("basMain"), QStringLiteral("UpdateStats"), QStringLiteral("Error Updating Statistics"),
           QStringLiteral("An error occurred while updating your weight loss statistics.")},
          [&session] {
            const WeightLog log(session);
            const std::optional<WeightRow> first = log.First();
            const std::optional<WeightRow> last = first ? log.Last() : std::nullopt;
            session.profile.FirstWeightDate = first ? first->date : QDate();
            session.profile.LastWeightDate = last ? last->date : QDate();
            session.profile.statistics = first && last
                                             ? MakeStatistics(*first, *last, ReadGoal(session), session.locale)
                                             : Statistics{unknown, unknown, unknown, unknown, unknown};
          });
  session.changes.AnnounceStatistics();
}

}  // namespace trimlog
