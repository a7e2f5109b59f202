#pragma once

#include "platform/windows/printing/list_document.h"

namespace trimlog {

class BoundGrid;

/// What a grid shows, as a list to print: all rows in order, visible columns that have a field.
PrintedList PrintedGrid(BoundGrid &grid, const QString &heading);

/// Prints a list with a preview before, or offers a PDF file where the machine has no printer. False when that was
/// cancelled. Throws an Error on failure. `output` stands in for the system's printing in tests.
bool PrintList(const PrintedList &list, Boxes &boxes, QWidget *owner, PageOutput *output = nullptr);
bool PrintGrid(BoundGrid &grid, const QString &heading, Boxes &boxes, PageOutput *output = nullptr);

}  // namespace trimlog
