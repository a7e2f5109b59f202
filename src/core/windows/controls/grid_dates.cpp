#include "core/windows/controls/grid_dates.h"

#include "core/windows/controls/frmCalendar.h"

namespace trimlog {

CellChoice::DatePicker CalendarForGrid(Session &session) {
  return [&session](QWidget &owner, const QDate &shown) -> std::optional<QDate> {
    frmCalendar calendar(session, shown.isValid() ? shown : session.Today(), owner.window());
    if (calendar.exec() != QDialog::Accepted) return std::nullopt;
    return calendar.Chosen();
  };
}

}  // namespace trimlog
