#pragma once

#include <QString>
#include <optional>

#include "core/settings/reward_settings.h"
#include "weightlog/calendar_month.h"

namespace trimlog {

class Session;

/// Reads the current profile's reward rule into session.profile.rewards. A profile without one gets the default rule
/// (weekly, 2, WellDone.wav of the program directory), stored at once; a profile that is not in the file yet gets it in
/// memory only. Throws what the store throws.
void LoadRewardSettings(Session &session);

/// Stores a rule for the current profile and makes it the session's. Double quotes in the message become two single
/// quotes. Throws what the store throws.
void SaveRewardSettings(Session &session, const RewardSettings &rewards);

/// The type's own default amount, "0.5" or "0.25" a day, "2.0" or "0.9" a week in pounds or kilograms; "" for the
/// others.
QString DefaultRewardAmount(RewardType type, int UomID);

/// What a congratulation shows and plays.
struct RewardNotice {
  QString title;    ///< the window's caption
  QString text;     ///< the line that states the result
  QString message;  ///< the profile's own words
  QString sound;    ///< path of a wave file
};

/// Does the weight that was just saved in cell `i` (1 to 42) of the month meet the profile's rule? Call it only for a
/// cell whose text changed and is not empty, after UpdateStats. Never throws: whatever cannot be read gives no reward.
std::optional<RewardNotice> EvaluateReward(Session &session, const CalendarMonth &month, int i);

/// "Goal Achieved!" or the distance left with its unit, from session.profile.statistics; "" while no goal is known.
QString RewardDistanceText(const Session &session);

}  // namespace trimlog
