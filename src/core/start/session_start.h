#pragma once

#include "core/session/session.h"

namespace trimlog {

/// The steps by which start fills the session from the open data file. All throw what the store throws.

/// The unit label of the unit system in force.
void LoadUnitLabel(Session &session);
/// The locale's decimal sign is a comma: the keypad's decimal key types one.
void LoadDecimalComma(Session &session);
/// A profile with the number 0, which no list shows and nothing can delete, gets the next free number and appears. A
/// failure is logged and stops nothing.
void NumberStrayProfile(Session &session);
/// The saved profile when it still exists, else the lowest PersonID above 0, else "1"; with its colour scheme and its
/// target set. Samples are never chosen.
void ChooseProfile(Session &session);
/// Makes temp_alldates afresh with one row, which fixes its column types, unless it has a row for today already.
/// Failures are ignored.
void RecreateDateTable(Session &session);
/// The nutrient vocabulary, the ten shown nutrients, and the targets of the chosen set.
void LoadNutrients(Session &session);

}  // namespace trimlog
