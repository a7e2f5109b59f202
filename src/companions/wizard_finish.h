#pragma once

#include <QString>

#include "companions/wizard_answers.h"
#include "core/session/session.h"

namespace trimlog {

/// Writes what the wizard asked, in one transaction: the profile, its first weight and, on the first run, its targets
/// and the shown nutrients. Returns the new profile's PersonID. Throws what the store throws; then nothing was written.
QString FinishWizard(Session &session, const WizardAnswers &answers, bool addingProfile);

/// Does the wizard start by itself? Only while the profile has no goal or no weights.
bool NeedsWizard(Session &session);

/// The name proposed for a new profile: the account's owner.
QString ProposedPersonName(const Session &session);

}  // namespace trimlog
