#pragma once

#include <QString>

#include "platform/grid/grid_columns.h"

namespace trimlog {

class Session;

/// Gives the columns of a journal list the widths that a file beside the program asks for, where there is one:
/// "view_all_meals.grd", "view_single_meals.grd", "view_all_activities.grd", "view_single_activities.grd". A line of
/// the file is the name of a column and its width in average characters, 1 to 200, or the word "hidden"; "#" begins a
/// comment:
///
///   # the meals of a single day
///   MealID  36
///   GIValue hidden
///
/// Columns that are not named stay as they are, and what is hidden for want of data stays hidden. A file that holds
/// anything else is passed over as a whole, with a line in the error log.
void LoadLayout(const Session &session, const QString &fileName, GridColumns &columns);

/// The same for a text; false, with nothing changed and the reason in `complaint`, when it is no layout of these
/// columns.
bool ApplyLayout(const QString &text, GridColumns &columns, QString &complaint);

}  // namespace trimlog
