#include "weightlog/rewards.h"

#include "core/session/change.h"
#include "core/session/failure_guard.h"
#include "core/session/session.h"
#include "core/settings/unit_system.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"
#include "weightlog/weight_log.h"

namespace trimlog {

namespace {

RewardSettings DefaultRewards(const Session &session) {
  return {RewardType::Weekly, 2, QStringLiteral("Great job!  You're one step closer to that ideal weight!"),
          session.programDirectory + QStringLiteral("/WellDone.wav")};
}

bool HasRow(const Session &session, const QString &table) {
  const Recordset rows =
      session.Data().OpenRecordset(QStringLiteral("SELECT %1.PersonID FROM %1 WHERE ((%1.PersonID)=?);").arg(table),
                                   {session.profile.CurrentPersonID.toInt()}, RecordsetKind::Forward);
  return !rows.Eof();
}

void InsertRewards(Session &session, const RewardSettings &rewards) {
  session.Data().Execute(
      QStringLiteral("INSERT INTO rewards ( PersonID, RewardType, RewardWeight, RewardMessage, RewardSound ) "
                     "SELECT ? AS Expr1, ? AS Expr2, ? AS Expr3, ? AS Expr4, ? AS Expr5;"),
      {session.profile.CurrentPersonID.toInt(), static_cast<int>(rewards.type), rewards.amount, rewards.message,
       rewards.sound});
}

QString AmountText(double amount, const Session &session) {
  return Format(amount, QStringLiteral("General Number"), session.locale);
}

QString LossWithUnit(double amount, const Session &session) {
  const QString unit = session.settings.UomID != poundsSystem ? QStringLiteral(" kg")
                       : amount > 1                           ? QStringLiteral(" pounds")
                                                              : QStringLiteral(" pound");
  return AmountText(amount, session) + unit;
}

/// The true loss behind a shown one; nothing for an empty or damaged text.
std::optional<double> TrueLoss(const QString &shown, const Session &session) {
  const std::optional<double> loss = ParseNumber(shown, session.locale);
  if (!loss) return std::nullopt;
  return *loss * session.settings.LossFactor;
}

using Congratulation = std::optional<std::pair<QString, QString>>;

Congratulation PersonalReward(const Session &session, const CalendarCell &cell) {
  const std::optional<double> weight = ParseNumber(cell.data, session.locale);
  const double target = session.profile.rewards.amount;
  if (!weight || *weight > target) return std::nullopt;
  const std::optional<double> lowest = WeightLog(session).LowestBetween(cell.date.addDays(-7), cell.date.addDays(-1));
  if (!lowest || *lowest <= target) return std::nullopt;
  const QString unit = session.settings.UomID == poundsSystem ? QStringLiteral(" pounds!") : QStringLiteral(" kg!");
  return std::pair(QStringLiteral("Personal Reward Weight Reached!"),
                   QStringLiteral("You have made it to ") + AmountText(*weight, session) + unit);
}

Congratulation DailyReward(const Session &session, const CalendarCell &cell) {
  const std::optional<double> amount = TrueLoss(cell.loss, session);
  if (!amount || *amount < session.profile.rewards.amount) return std::nullopt;
  return std::pair(QStringLiteral("Daily Reward"), QStringLiteral("You have lost ") + LossWithUnit(*amount, session) +
                                                       QStringLiteral(" since you last weighed-in!"));
}

/// The last row with a Saturday before cell `i`, unless a weight stands in between: then that weigh-in has had its
/// turn.
int FinishedWeekRow(const CalendarMonth &month, int i) {
  for (int before = i - 1; before >= 1; --before) {
    if (!month.Cell(before).data.isEmpty()) return 0;
    if (IsSaturdayCell(before)) return RowOfCell(before);
  }
  return 0;
}

Congratulation WeeklyReward(const Session &session, const CalendarMonth &month, int i) {
  const bool weekEnds = IsSaturdayCell(i);
  const int row = weekEnds ? RowOfCell(i) : FinishedWeekRow(month, i);
  if (row == 0) return std::nullopt;
  const std::optional<double> amount = TrueLoss(month.Total(row).text, session);
  if (!amount || *amount < session.profile.rewards.amount) return std::nullopt;
  return std::pair(QStringLiteral("Weekly Reward"),
                   QStringLiteral("You lost ") + LossWithUnit(*amount, session) +
                       (weekEnds ? QStringLiteral(" this week!") : QStringLiteral(" last week!")));
}

Congratulation CongratulationFor(const Session &session, const CalendarMonth &month, int i) {
  switch (session.profile.rewards.type) {
    case RewardType::Never:
      return std::nullopt;
    case RewardType::PersonalWeight:
      return PersonalReward(session, month.Cell(i));
    case RewardType::Daily:
      return DailyReward(session, month.Cell(i));
    case RewardType::Weekly:
      return WeeklyReward(session, month, i);
  }
  return std::nullopt;
}

}  // namespace

void LoadRewardSettings(Session &session) {
  const Recordset row =
      session.Data().OpenRecordset(QStringLiteral("SELECT rewards.* FROM rewards WHERE ((rewards.PersonID)=?);"),
                                   {session.profile.CurrentPersonID.toInt()});
  if (row.Eof()) {
    session.profile.rewards = DefaultRewards(session);
    if (HasRow(session, QStringLiteral("people"))) InsertRewards(session, session.profile.rewards);
    return;
  }
  session.profile.rewards = {static_cast<RewardType>(row.Integer(QStringLiteral("RewardType"))),
                             row.Number(QStringLiteral("RewardWeight")), row.Text(QStringLiteral("RewardMessage")),
                             row.Text(QStringLiteral("RewardSound"))};
}

void SaveRewardSettings(Session &session, const RewardSettings &rewards) {
  RewardSettings kept = rewards;
  kept.message = WithoutDoubleQuotes(rewards.message);
  Change change(session);
  if (HasRow(session, QStringLiteral("rewards"))) {
    session.Data().Execute(
        QStringLiteral("UPDATE rewards SET rewards.RewardType = ?, rewards.RewardWeight = ?, "
                       "rewards.RewardMessage = ?, rewards.RewardSound = ? WHERE (((rewards.PersonID)=?));"),
        {static_cast<int>(kept.type), kept.amount, kept.message, kept.sound, session.profile.CurrentPersonID.toInt()});
  } else if (HasRow(session, QStringLiteral("people"))) {
    InsertRewards(session, kept);
  }
  change.Announce({.table = Table::Rewards,
                   .keys = {session.profile.CurrentPersonID.toInt()},
                   .personID = session.profile.CurrentPersonID});
  change.Afterwards([&session, kept] { session.profile.rewards = kept; });
  change.Commit();
}

QString DefaultRewardAmount(RewardType type, int UomID) {
  if (type == RewardType::Daily) return UomID == poundsSystem ? QStringLiteral("0.5") : QStringLiteral("0.25");
  if (type == RewardType::Weekly) return UomID == poundsSystem ? QStringLiteral("2.0") : QStringLiteral("0.9");
  return {};
}

std::optional<RewardNotice> EvaluateReward(Session &session, const CalendarMonth &month, int i) {
  if (session.windows.SuppressReward || month.Cell(i).data.isEmpty()) return std::nullopt;
  std::optional<RewardNotice> notice;
  GuardedQuietly([&] {
    if (const Congratulation found = CongratulationFor(session, month, i)) {
      notice =
          RewardNotice{found->first, found->second, session.profile.rewards.message, session.profile.rewards.sound};
    }
  });
  return notice;
}

QString RewardDistanceText(const Session &session) {
  const std::optional<double> left = ParseNumber(session.profile.statistics.LbsLeft, session.locale);
  if (!left) return {};
  if (*left <= 0) return QStringLiteral("Goal Achieved!");
  return session.profile.statistics.LbsLeft +
         (session.settings.UomID == poundsSystem ? QStringLiteral(" pounds to go!") : QStringLiteral(" kg to go!"));
}

}  // namespace trimlog
