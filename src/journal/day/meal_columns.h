#pragma once

#include <QStringList>

#include "platform/grid/grid_columns.h"

namespace trimlog {

class GridRowEdit;
class Session;

/// The columns of a list of meals behind the date: meal type, food, servings, the ten shown nutrients as Nut1 to Nut10,
/// glycemic value. Blank or wrong servings become 1, blank or wrong nutrients 0. Every cell saves its row at once but
/// the calories: what a person types there counts in the day's totals at once and is saved when the row is left.
/// `small`: as JournalKind::isSmall.
GridColumns MealColumns(Session &session, bool small);

/// "Nut1" to "Nut10".
QStringList NutrientColumnNames();

/// A sentence for a row that the file could not keep; empty when it can.
QString CheckMealRow(const GridRowEdit &row);

}  // namespace trimlog
