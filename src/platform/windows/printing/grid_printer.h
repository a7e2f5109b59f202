#pragma once

#include "platform/printing/printing.h"

namespace trimlog {

class BoundGrid;

/// What a grid shows, as a list to print: all rows in order, visible columns that have a field.
PrintedList PrintedGrid(BoundGrid &grid, const QString &heading);

}  // namespace trimlog
