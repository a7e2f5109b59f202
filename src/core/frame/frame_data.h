#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

/// What the statistics panel shows of the profile itself.
struct PersonFigures {
  QString PersonName;
  QString Goal;  ///< with the decimal sign of the person's locale; "" without a goal
};

/// Reads them for the current profile; both empty when it has no row. Throws what the store throws.
PersonFigures ReadPersonFigures(Session &session);

/// True when foods were chosen for a handheld of the older kind.
bool HasHandheldMeals(Session &session);

}  // namespace trimlog
