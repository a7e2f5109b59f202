#pragma once

#include <QString>

#include "companions/wizard_answers.h"
#include "companions/wizard_plan.h"
#include "core/session/session.h"

namespace trimlog {

/// Does the wizard start by itself? Only while the profile has no goal or no weights.
bool NeedsWizard(Session &session);

/// What the wizard is for when it starts now.
WizardMode WizardModeNow(Session &session);

/// What the wizard begins with. Completing a profile, that is all that the profile has; `hasWeights` tells that the
/// weight is its first one, which stays.
struct WizardStart {
  WizardAnswers answers;
  bool hasWeights = false;
};
WizardStart StartingAnswers(Session &session, WizardMode mode);

/// Writes what the wizard asked, all or nothing: the profile, its first weight (where it has none) and, on the first
/// run, its targets and the shown nutrients. Returns the profile's PersonID. Throws what the store throws; then nothing
/// was written.
QString FinishWizard(Session &session, const WizardAnswers &answers, WizardMode mode);

}  // namespace trimlog
