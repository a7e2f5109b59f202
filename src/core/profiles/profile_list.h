#pragma once

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

/// What a changed row of the profiles list is refused for: a height that is no person's in the unit system `UomID`. A
/// height that nobody touched stays, whatever the units have become since.
QString RefusedProfileRow(const GridRowEdit &row, int UomID);

}  // namespace trimlog
