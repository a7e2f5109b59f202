#include "journal/day_walk.h"

#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// Calls `visit` for each row of the day.
template <typename Visit>
void WalkDay(const DayRows &rows, const QDate &date, const Visit &visit) {
  const int current = rows.CurrentRow();
  if (current >= 0) visit(current);
  for (int row = current - 1; row >= 0 && rows.DateOf(row) == date; --row) visit(row);
  for (int row = current + 1; row < rows.RowCount() && rows.DateOf(row) == date; ++row) visit(row);
}

}  // namespace

QDate DayOf(const DayRows &rows, const QDate &shownDate) {
  return rows.CurrentRow() < 0 ? shownDate : rows.DateOf(rows.CurrentRow());
}

std::vector<double> SumDay(const DayRows &rows, const QDate &date, const QStringList &columns, const QLocale &locale) {
  std::vector<double> sums(columns.size());
  WalkDay(rows, date, [&](int row) {
    for (int i = 0; i < columns.size(); ++i) sums[i] += ValueOrZero(rows.CellText(row, columns[i]), locale);
  });
  return sums;
}

ExerciseTotals SumExercises(const DayRows &rows, const QDate &date, const QLocale &locale) {
  const std::vector<double> sums = SumDay(rows, date, {QStringLiteral("Calories"), QStringLiteral("Duration")}, locale);
  return {sums[0], sums[1]};
}

}  // namespace trimlog
