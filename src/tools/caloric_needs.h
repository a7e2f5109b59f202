#pragma once

#include <QLocale>
#include <QString>
#include <array>

#include "tools/tools_profile.h"

namespace trimlog {

inline constexpr int activityLevels = 3;

/// A way of life and what it adds to the basal rate.
struct ActivityLevel {
  QString caption;
  QString description;
  double multiplier = 1;  ///< of the basal metabolic rate
  QString opening;        ///< how the summary begins
};
const std::array<ActivityLevel, activityLevels> &ActivityLevels();

/// What the estimator is asked.
struct CaloricQuestion {
  bool atGoalWeight = false;  ///< else the current weight
  QString goalWeight;         ///< as typed
  bool atOtherAge = false;    ///< else the difference of today's and the birth date's calendar years
  QString otherAge;           ///< as typed
};

/// The amounts as they are shown; all empty while nothing is calculated.
struct CaloricNeeds {
  QString bmr;                                 ///< "1480 calories."
  std::array<QString, activityLevels> perDay;  ///< "1998 calories"
};

/// Throws typeMismatch with a sentence for the person when an input is missing or is no number, overflow for amounts
/// beyond the 32-bit range.
CaloricNeeds EstimateCaloricNeeds(const CaloricQuestion &question, const ToolsProfile &profile, int UomID,
                                  const QDate &today, const QLocale &locale);

/// The advice for one level; empty while nothing is calculated.
QString SummarizeCaloricNeeds(const CaloricNeeds &needs, int activity, bool atGoalWeight);

}  // namespace trimlog
