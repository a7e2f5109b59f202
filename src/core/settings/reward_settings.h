#pragma once

#include <QString>

namespace trimlog {

enum class RewardType { Never = 0, PersonalWeight = 1, Daily = 2, Weekly = 3 };

/// The current profile's reward rule, as kept in the table rewards.
struct RewardSettings {
  RewardType type = RewardType::Weekly;
  double amount = 2;  ///< a weight for PersonalWeight, a loss for Daily and Weekly, in the unit in force
  QString message;
  QString sound;  ///< path of a wave file
};

}  // namespace trimlog
