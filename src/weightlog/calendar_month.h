#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <array>

#include "core/settings/settings.h"

namespace trimlog {

inline constexpr int calendarCells = 42;
inline constexpr int calendarRows = 6;

/// Colours in blue-green-red byte order. The first three carry a meaning; a window may show a shade that is readable on
/// its desktop.
namespace calendar_colour {
inline constexpr quint32 gain = 255;
inline constexpr quint32 even = 0;
inline constexpr quint32 loss = 32768;
inline constexpr quint32 white = 0xFFFFFF;
inline constexpr quint32 buttonFace = 0x8000000F;  ///< the desktop's own button colour
}  // namespace calendar_colour

/// One day as it is shown. Texts are in the person's locale.
struct CalendarCell {
  QDate date;
  QString data;         ///< the weight
  QString loss;         ///< the loss with the sign that the person chose to see
  QString calories;     ///< the day's nutrient figure
  QString caloriesTip;  ///< how the figure comes about; may be empty
  QString day;          ///< day of the month
  QString dateValue;    ///< short date
  bool visible = true;
  bool enabled = true;  ///< belongs to the month itself, so that a weight can be typed
  bool lossVisible = false;
  bool caloriesVisible = false;
  quint32 lossColor = calendar_colour::even;
  quint32 background = calendar_colour::white;
};

struct CalendarTotal {
  QString text;
  quint32 color = calendar_colour::even;
  bool visible = true;
};

/// A month on the calendar: six weeks of seven days, Sunday first, with totals. Plain values; cells count from 1 to 42,
/// weeks from 1 to 6.
struct CalendarMonth {
  QDate firstDate;  ///< the 1st
  QDate baseDate;   ///< the day before cell 1
  QString title;
  CalendarTotal monthTotal;
  int currentIndex = 0;  ///< the active cell, 0 for none
  QDate currentDate;

  CalendarCell &Cell(int i) { return cells[static_cast<size_t>(i - 1)]; }
  const CalendarCell &Cell(int i) const { return cells[static_cast<size_t>(i - 1)]; }
  CalendarTotal &Total(int row) { return totals[static_cast<size_t>(row - 1)]; }
  const CalendarTotal &Total(int row) const { return totals[static_cast<size_t>(row - 1)]; }
  /// The cell of a date, 0 when the month does not show it.
  int IndexOf(const QDate &date) const;
  /// True when a weight can be typed into the cell; false for 0 and anything else outside 1 to 42.
  bool CanEnter(int i) const;

  std::array<CalendarCell, calendarCells> cells;
  std::array<CalendarTotal, calendarRows> totals;
};

/// How a loss is shown: pounds with one decimal, kilograms with two.
QString LossPattern(const Settings &settings);

inline int RowOfCell(int i) { return (i - 1) / 7 + 1; }
inline bool IsSaturdayCell(int i) { return i % 7 == 0; }

/// The Sunday that names the week of a date.
QDate GetWeekOf(const QDate &date);

/// Puts the month of a date on the calendar: first date, base date and the dates of the cells.
void FillCalendarDates(CalendarMonth &month, const QDate &anyDay, const QLocale &locale);
/// Decides what is shown and what can be typed into. Keeps the mark of the active cell in `backColor`.
void HideDays(CalendarMonth &month, const Settings &settings, quint32 backColor);
/// Sums the shown losses by week and for the month. Days of neighbouring months count in their week, not in the month.
void UpdateWeeklyTotals(CalendarMonth &month, const Settings &settings, const QLocale &locale);
void ColorLossCells(CalendarMonth &month, const Settings &settings, const QLocale &locale);
/// Moves the mark of the active cell; `i` is 1 to 42.
void MarkActiveCell(CalendarMonth &month, int i, quint32 backColor);

enum class CalendarArrow { Left, Right, Up, Down };
/// Where an arrow key leads from a cell; 0 for nowhere.
int ArrowTarget(const CalendarMonth &month, int i, CalendarArrow arrow);
/// The cell to go on with after the last weight of the month: the day behind it, else its own; 0 without a weight.
int NextDateCell(const CalendarMonth &month);

}  // namespace trimlog
