#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include "core/session/failure_guard.h"
#include "core/session/session.h"
#include "platform/grid/grid_columns.h"
#include "platform/grid/grid_hooks.h"
#include "platform/grid/grid_source.h"

namespace trimlog {

/// The ordinary profiles by name, as the grids of the options window show them.
GridSource ProfilesSource();
/// The profiles list: name, goal, height, gender, birth date, with their checks. Captions follow the unit system.
GridColumns ProfileColumns(const Session &session);
/// The colour list: the names, and beside them, unseen, each one's colour.
GridColumns ProfileColourColumns();

/// The failure exits of the profiles list.
FailureExit ProfileListFailure(GridAction action);

/// The warning before one or several profiles are deleted with everything they hold. True for Yes.
bool AskDeleteProfiles(Session &session, int count);

/// After a deletion: the profile that the session should stand on. The current one when it is still there, otherwise
/// the first that is left, otherwise the first sample. Also forgets a deleted LastRealPersonID.
QString ProfileToStandOn(Session &session);

/// Why a height (one of its two numbers) or a birth date cannot be kept: a sentence, or "". An invalid date is "not
/// told".
QString RefusedHeight(double height);
QString RefusedBirthDate(const QDate &date, const QDate &today);

/// May the options window be left with this goal, as shown in the person's own form? True for a number above 0;
/// otherwise the person decides.
bool ConfirmGoal(Session &session, const QString &goal);

/// A kept goal ("150.5") in the person's own form; a goal that is no number as it is.
QString GoalToShow(const QString &stored, const QLocale &locale);

}  // namespace trimlog
