#pragma once

#include "core/session/session.h"
#include "platform/windows/grid/cell_choice.h"

namespace trimlog {

/// The program's calendar as what a grid asks for dates:
///
///   grid->SetDatePicker(CalendarForGrid(session));
///
/// It opens on the cell's date, or on today where the cell holds none.
CellChoice::DatePicker CalendarForGrid(Session &session);

}  // namespace trimlog
