#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// The flags of special installations, kept in the settings store and read at start.
void LoadBizEdSettings(Session &session);
/// Handheld support is on when the store holds a day count for it.
void LoadHandheldSettings(Session &session);
void LoadSeravaSetting(Session &session);

/// "Trimlog Pro 2.7", the SERAVA edition's own, or the group's title where its members log in.
QString ApplicationTitle(const Session &session);

/// Whether the handheld's own program follows the exchange at exit; true unless the store says no.
bool ActiveSyncOnExit(const Session &session);

}  // namespace trimlog
