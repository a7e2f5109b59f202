#pragma once

#include <QString>
#include <functional>

#include "core/session/failure_guard.h"
#include "core/session/session.h"

namespace trimlog {

/// The box for a data file that cannot be opened, by the failure's number.
void ShowOpenFailure(Session &session, const Failure &failure);

/// The program is to end, and what was being typed cannot be saved. True: the person gives it up.
bool AskToCloseWithoutSaving(Session &session);

/// The notices that follow an upgrade of the data file, by the version that it had before. `openSetup` shows the
/// options window, where gender and birth date are entered.
void ShowUpgradeNotices(Session &session, const QString &oldVersion, const std::function<void()> &openSetup);

}  // namespace trimlog
