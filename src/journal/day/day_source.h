#pragma once

#include <QDate>
#include <QString>

#include "journal/day/journal_kind.h"
#include "platform/grid/grid_source.h"

namespace trimlog {

/// Which rows of a profile are looked at.
struct DayScope {
  int personID = 0;
  JournalView view = JournalView::SingleDate;
  QDate date;  ///< of the single-date view; invalid there: no rows
};

// The rows behind the journal's lists, newest day first. Entries of a day come by meal and then in the order in which
// they were made. With a meal stands its food, as meals_list.
GridSource MealsSource(const DayScope &scope, EntryKind entries);
GridSource ActivitiesSource(const DayScope &scope, EntryKind entries);
GridSource NotesSource(const DayScope &scope);
GridSource MeasurementsSource(const DayScope &scope);

}  // namespace trimlog
