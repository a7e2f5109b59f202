#pragma once

#include "core/session/session.h"
#include "platform/machine/operating_system.h"

namespace trimlog {

/// Looks, once in an installation's life, for two old programs that are known to get in the way: a display driver of
/// 1999 and a guard program that kept this one from closing. False when the person chose to read the support page: the
/// program ends, and the question comes again at the next start.
bool CheckForConflicts(Session &session, const OperatingSystem &system);

}  // namespace trimlog
