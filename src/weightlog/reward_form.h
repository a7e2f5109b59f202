#pragma once

#include <QString>

#include "core/session/session.h"
#include "core/settings/reward_settings.h"

namespace trimlog {

/// What the rewards tab shows and a person types; amounts as text in the person's own form.
struct RewardForm {
  RewardType type = RewardType::Never;
  QString daily;
  QString weekly;
  QString weight;
  QString message;
  QString sound;

  /// The field of a type; nothing for Never.
  QString *AmountOf(RewardType of);
};

/// The current profile's rule as the tab shows it; only the field of its type is filled.
RewardForm ReadRewardForm(const Session &session);

/// What a type's empty field begins with when the type is chosen: its default in the unit system, or the profile's
/// goal.
QString ProposedAmount(Session &session, RewardType type, int uomID);

/// After another unit system was chosen: amounts that are the other system's default become this one's; no amount is
/// converted.
void SwapRewardDefaults(RewardForm &form, int uomID, const QLocale &locale);

/// Is the amount of the chosen type a number above 0? Shows the box when not.
bool CheckRewardForm(Session &session, RewardForm &form);

/// Stores the rule in one transaction. False when that failed; the box has been shown.
bool SaveRewardForm(Session &session, RewardForm &form);

/// "Personal Reward", "Daily Reward" or "Weekly Reward".
QString RewardTestTitle(RewardType type);

/// Whose rule is edited, and what to do for somebody else's.
QString RewardTitle(const QString &personName);
QString RewardNote(const QString &personName);
QString RewardProfileName(Session &session);

}  // namespace trimlog
