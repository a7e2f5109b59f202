#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <vector>

namespace trimlog {

/// The rows of a journal list as a grid shows them, sorted by date: what a day's totals are taken from, so that an edit
/// not yet saved counts and no row is read again. Cells go by the name of their column, so that one of these serves
/// meals, exercises and measurements alike.
class DayRows {
 public:
  virtual ~DayRows() = default;
  virtual int RowCount() const = 0;
  /// The row whose day is meant; -1 when there is none.
  virtual int CurrentRow() const = 0;
  virtual QDate DateOf(int row) const = 0;
  /// The text that the cell holds now, with all decimals, in the locale's form.
  virtual QString CellText(int row, const QString &column) const = 0;
};

/// The day that totals are for: the current row's, or the one shown when no row is current.
QDate DayOf(const DayRows &rows, const QDate &shownDate);

/// The sums of some columns over the rows of one day, in the order of the columns: from the current row up and down
/// while the date holds; from the first row down when no row is current. A text that is no number counts as 0.
std::vector<double> SumDay(const DayRows &rows, const QDate &date, const QStringList &columns, const QLocale &locale);

/// What the exercises of one day come to.
struct ExerciseTotals {
  double calories = 0;
  double minutes = 0;
};
/// By the columns Calories and Duration.
ExerciseTotals SumExercises(const DayRows &rows, const QDate &date, const QLocale &locale);

}  // namespace trimlog
