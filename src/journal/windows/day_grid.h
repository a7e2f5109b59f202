#pragma once

#include <QString>

#include "core/data/tables.h"
#include "core/session/failure_guard.h"
#include "journal/windows/journal_page.h"
#include "platform/grid/grid_columns.h"

class QWidget;

namespace trimlog {

class BoundGrid;

/// What tells the lists of a journal window apart.
struct DayGridNames {
  QString grid;          ///< of the control, "grdMeals"
  QString label;         ///< what a screen reader says
  QString recordSource;  ///< "datMeals": rows go to and come from lists with the same one
  Table table = Table::Meals;
};

/// A list of a journal window with what all of them have in common: failures in one box, the question before a
/// deletion where it is wanted, rows pasted to the day shown, the calendar for dates, what is announced and followed,
/// the widths kept, the rows in the profile's colour. Columns and further hooks are the caller's; withUpdate and
/// withDelete are taken.
BoundGrid *MakeDayGrid(const JournalParts &parts, const DayGridNames &names, QWidget *parent);

/// Among all dates the day meant is that of the list's current row.
void FollowCurrentRow(BoundGrid &grid, JournalDay &day);

/// Saves the row being typed, as leaving it would; a refused one says why in a box and keeps the focus.
EditOutcome SaveDayGrid(Session &session, BoundGrid &grid);
/// Takes the row being typed back to what the file holds.
void DropDayGrid(BoundGrid &grid);

/// Makes a row that was just added current, in a column. False, with a line in the log, when it is not in the list.
bool GoToAddedRow(Session &session, BoundGrid &grid, int recordID, const QString &column);

/// Where a list could not be read or a record of a day could not be stored or deleted: the box and the names in the
/// log. `control` is the one that the person was at.
FailureExit LoadDayFailure(const QString &control);
FailureExit SaveDayFailure(const QString &control);
FailureExit DeleteDayFailure(const QString &control);

/// The first column of every list: "ThisDate". A text that is no date, or the zero date, gives way to what stood.
GridColumn DateColumn();

}  // namespace trimlog
