#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// Puts a sample profile ("-1" or "-2") back to its pristine copy, in one transaction; any other profile is left alone.
/// A failure shows its box, logs the failing statement and leaves the profile as it was.
void ResetSampleProfile(Session &session, const QString &personID);

/// The question before it. True for Yes.
bool AskResetSampleProfile(Session &session);

}  // namespace trimlog
