#pragma once

#include <QString>

#include "core/session/session.h"

namespace trimlog {

class BoundGrid;

/// A row that cannot be saved keeps a window from going on: says why in a box, and leads to the cell.
void ShowRefusedRow(Session &session, const QString &title, BoundGrid &grid);

}  // namespace trimlog
