#pragma once

#include <QList>
#include <QString>

#include "core/data/nutrients.h"

namespace trimlog {

/// Nutrients that stand together in the full nutrient dialog, by NutrientID.
struct NutrientGroup {
  QString title;
  QList<int> nutrientIDs;
};
/// The 35 nutrients in groups, as a food label goes: what labels give first, what is computed and the person's own
/// last.
const QList<NutrientGroup> &NutrientGroups();

/// "Calories (cal):", "Total Fat (g):", ...; a custom nutrient under the name that the person gave it.
QString NutrientLabel(const Nutrients &nutrients, int nutrientID);

/// In which of so many columns each group stands, in order and about equally high.
QList<int> ColumnsOfGroups(const QList<NutrientGroup> &groups, int columns);

}  // namespace trimlog
