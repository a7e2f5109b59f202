#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <optional>

#include "core/session/session.h"
#include "health/body_formulas.h"
#include "health/weight_ends.h"

namespace trimlog {

enum class GoalMethod { ByRate = 1, ByDate = 2 };

/// What the three calculators read of the session's profile.
struct ToolsProfile {
  BodyProfile body;
  QString Goal;  ///< as the person reads it, in the locale's form
  GoalMethod method = GoalMethod::ByDate;
  QDate GoalMethodDate;                      ///< invalid: none stored
  QString GoalMethodLbsWeek;                 ///< in the locale's form; empty: none stored
  std::optional<DatedWeight> initialWeight;  ///< the earliest; none: no weight is recorded
  std::optional<DatedWeight> currentWeight;  ///< the latest
  std::optional<double> LatestWaist;         ///< of the latest measurements; none: no measurement, or no waist in it
};
ToolsProfile ReadToolsProfile(const Session &session);

/// Keeps the method of the plan, its date and its rate with the profile and announces the change; a rate that is no
/// number and an empty date store nothing there. The goal weight of the planner is a what-if and is never stored.
/// Writes nothing when nothing differs.
void SaveGoalMethod(Session &session, GoalMethod method, const QDate &date, const QString &rate);

// What the panels show of the profile.
QString GenderText(int GenderID);
/// "66 Inches" or "170 Cm".
QString WholeHeightText(const BodyProfile &body, int UomID, const QLocale &locale);
QString LengthUnitText(int UomID);
/// "Use My Current Weight of 150.5 Lbs"; without the amount while no weight is recorded.
QString CurrentWeightCaption(const ToolsProfile &profile, const QString &UomDisplay, const QLocale &locale);
QString InitialWeightCaption(const ToolsProfile &profile, const QString &UomDisplay, const QLocale &locale);
/// "Use My Most Recent Measurement of 36 Inches"; without the amount while no waist is recorded.
QString CurrentWaistCaption(const ToolsProfile &profile, int UomID, const QLocale &locale);

/// A number in its shortest form as the person reads it.
QString NumberText(double value, const QLocale &locale);

}  // namespace trimlog
