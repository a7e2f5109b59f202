#pragma once

#include <QString>

#include "core/failure_guard.h"
#include "core/session.h"

namespace trimlog {

/// What the frame's load sequence asks of the logic below it.

/// False, after its box, when the data file is not (or no longer) in the program directory: the program ends.
bool CheckDataFilePresent(Session &session);
/// The failure exit of the load sequence as a whole.
FailureExit FrameLoadFailure();
bool ShowsSplash(const Session &session);
/// The wizard may start by itself: only for PersonID 1 and not after a backup, restore or import.
bool OffersWizard(const Session &session);
bool OffersTutorial(const Session &session);
/// Foods were chosen for the old handheld: its menu is shown.
bool HasHandheldFoods(Session &session);
/// Starts the tutorial selector beside the program; false when there is none.
bool StartTutorialSelector(Session &session);

}  // namespace trimlog
