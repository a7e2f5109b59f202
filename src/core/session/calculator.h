#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// The path of the desktop's own calculator, "" when there is none.
QString FindCalculator();

/// Starts it; says so when that fails.
void StartCalculator(Session &session);

}  // namespace trimlog
