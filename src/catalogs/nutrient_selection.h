#pragma once

#include <QList>
#include <QString>
#include <array>

#include "core/session/session.h"

namespace trimlog {

/// One nutrient that a position may show.
struct NutrientChoice {
  int NutrientID = 0;  ///< 0 is "None"
  QString descriptionPlusUnit;
  QString shortDescription;
};
/// All 36, in their sort order, "None" first.
QList<NutrientChoice> SelectableNutrients(Session &session);

using NutrientSelection = std::array<SelectedNutrient, shownNutrients>;

/// The ten positions as stored; one selection holds for the whole file. Throws when the file holds none.
NutrientSelection ReadNutrientSelection(Session &session);
/// Stores them in one transaction, refreshes the session's vocabulary and announces the change. Throws when the file
/// holds no selection.
void SaveNutrientSelection(Session &session, const NutrientSelection &selection);

/// True when foods built on the old selection are on a handheld: a notice is due.
bool HandheldHoldsFoods(Session &session);

}  // namespace trimlog
