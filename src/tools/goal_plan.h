#pragma once

#include <QLocale>
#include <QString>
#include <optional>

#include "platform/boxes.h"
#include "tools/tools_profile.h"

namespace trimlog {

/// What the planner is asked: the fields as they are typed, and the weight to start from.
struct GoalQuestion {
  QString goal;
  GoalMethod method = GoalMethod::ByDate;
  QString rate;                      ///< weight a week; counts for ByRate
  QString date;                      ///< counts for ByDate
  std::optional<DatedWeight> start;  ///< none: no weight is recorded
};

/// The planner's answer: by which date at this rate, or at which rate by this date, and the index of the goal.
struct GoalPlan {
  QString text;     ///< empty when the goal is no number
  QString failure;  ///< what kept a step from being calculated; empty when all could be
};
GoalPlan PlanGoal(const GoalQuestion &question, const BodyProfile &body, int UomID, const QString &UomDisplay,
                  const QLocale &locale);

/// Shown until the plan is calculated.
QString PlanPrompt();

// What is wrong with a field when it is left: the box to show, or nothing.
std::optional<Box> CheckGoal(const QString &goal, const QLocale &locale);
std::optional<Box> CheckGoalMethodDate(const QString &date, const QLocale &locale);
std::optional<Box> CheckGoalMethodRate(const QString &rate, const QLocale &locale);

/// The rate as it is, or the usual one of the unit system where it is no positive number: 1 lbs or 0.9 kg.
QString RepairedRate(const QString &rate, int UomID, const QLocale &locale);

}  // namespace trimlog
