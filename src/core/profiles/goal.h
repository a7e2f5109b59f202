#pragma once

#include <QLocale>
#include <QString>
#include <optional>

#include "core/session/session.h"

namespace trimlog {

/// The most that a weight or a goal can be: above it a Double cannot keep two decimals any more.
inline constexpr double heaviestWeight = 9e13;

// A goal weight is kept as text in the profile, in the unit system in force when it was typed. This is the one place
// that reads it; whatever shows it or counts with it asks here.

/// The number of a kept goal. The program keeps it with a point ("150.5"); a comma, as other writers of the file leave
/// it, is a decimal sign too, whatever the locale of today's machine. Nothing for a text that is no such number.
std::optional<double> GoalFrom(const QString &stored);
/// A kept goal in the person's own form; a text that is no goal as it is.
QString GoalToShow(const QString &stored, const QLocale &locale);
/// The form in which a goal is kept; "" for none.
QString GoalToStore(const std::optional<double> &goal);
/// The goal of the session's profile.
std::optional<double> ReadGoal(const Session &session);
/// The same in the person's own form; "" for none.
QString ReadGoalText(const Session &session);

/// Why a goal cannot be kept: a sentence, or "". A goal of 0 or less can be; ConfirmGoal asks about it.
QString RefusedGoal(double goal);
/// A number above 0, as typed or shown.
bool IsGoal(const QString &goal, const QLocale &locale);
/// May a form be left with this goal, as typed or shown? True for a number above 0; otherwise the person decides, and
/// who only presses Enter stays.
bool ConfirmGoal(Session &session, const QString &goal);

}  // namespace trimlog
