#pragma once

#include "core/session/session.h"

namespace trimlog {

class BoundGrid;

/// Joins a grid to a table of the data file: what is stored and deleted in it is announced with the grid as who did it,
/// and rows that others changed are read afresh. What is announced names the day of the rows where they have one. Call
/// it after the grid's own hooks are set.
void FollowTable(BoundGrid &grid, Session &session, Table table);

}  // namespace trimlog
