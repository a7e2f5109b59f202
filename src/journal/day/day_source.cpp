#include "journal/day/day_source.h"

namespace trimlog {

namespace {

GridSource RowsOf(const QString &table, const DayScope &scope) {
  GridSource source;
  source.table = table;
  source.key = QStringLiteral("RecordID");
  source.scope = {{QStringLiteral("PersonID"), scope.personID}};
  source.order = {{QStringLiteral("ThisDate"), true}};
  if (scope.view == JournalView::SingleDate) {
    source.where = QStringLiteral("((%1.ThisDate) = ?)").arg(table);
    source.params = {scope.date};
  }
  return source;
}

GridSource EntriesIn(const QString &table, const DayScope &scope, EntryKind entries) {
  GridSource source = RowsOf(table, scope);
  source.scope.append({QStringLiteral("IsPlanned"), entries == EntryKind::Planned});
  return source;
}

}  // namespace

GridSource MealsSource(const DayScope &scope, EntryKind entries) {
  GridSource source = EntriesIn(QStringLiteral("meals"), scope, entries);
  source.beside = QStringLiteral("LEFT JOIN meals_list ON meals.MealID = meals_list.MealID");
  source.order.append({QStringLiteral("MealTypeID")});
  return source;
}

GridSource ActivitiesSource(const DayScope &scope, EntryKind entries) {
  GridSource source = EntriesIn(QStringLiteral("activities"), scope, entries);
  source.beside = QStringLiteral("LEFT JOIN activities_list ON activities.ActivityID = activities_list.ActivityID");
  return source;
}

GridSource NotesSource(const DayScope &scope) { return RowsOf(QStringLiteral("notes"), scope); }

GridSource MeasurementsSource(const DayScope &scope) { return RowsOf(QStringLiteral("measurements"), scope); }

}  // namespace trimlog
