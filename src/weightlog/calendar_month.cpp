#include "weightlog/calendar_month.h"

#include "core/settings/unit_system.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr int lastWeekIndex = 36;  ///< first cell of the sixth row

/// Adding decimals in binary leaves dust that would colour an even week red.
double WithoutDust(double value) { return RoundHalfAway(value, 9); }

quint32 ColourOf(double shownLoss, const Settings &settings) {
  if (!settings.ColorCoding) return calendar_colour::even;
  const double loss = shownLoss * settings.LossFactor;
  if (loss < 0) return calendar_colour::gain;
  return loss > 0 ? calendar_colour::loss : calendar_colour::even;
}

void ShowTotal(CalendarTotal &total, double sum, const Settings &settings, const QLocale &locale) {
  const double clean = WithoutDust(sum);
  total.text = Format(clean, LossPattern(settings), locale);
  total.color = ColourOf(clean, settings);
}

bool BelongsToNeighbour(int i, int day) { return (i <= 7 && day >= 20) || (i >= 29 && day < 15); }

}  // namespace

int CalendarMonth::IndexOf(const QDate &date) const {
  const qint64 i = baseDate.isValid() && date.isValid() ? baseDate.daysTo(date) : 0;
  return i >= 1 && i <= calendarCells ? static_cast<int>(i) : 0;
}

bool CalendarMonth::CanEnter(int i) const { return i >= 1 && i <= calendarCells && Cell(i).visible && Cell(i).enabled; }

QString LossPattern(const Settings &settings) {
  return settings.UomID == poundsSystem ? QStringLiteral("0.0") : QStringLiteral("0.00");
}

QDate GetWeekOf(const QDate &date) { return date.addDays(1 - DatePart(QStringLiteral("w"), date)); }

void FillCalendarDates(CalendarMonth &month, const QDate &anyDay, const QLocale &locale) {
  month.firstDate = QDate(anyDay.year(), anyDay.month(), 1);
  month.baseDate = month.firstDate.addDays(-DatePart(QStringLiteral("w"), month.firstDate));
  month.title = FormatDate(month.firstDate, QStringLiteral("mmmm, yyyy"), locale);
  for (int i = 1; i <= calendarCells; ++i) {
    CalendarCell &cell = month.Cell(i);
    cell.date = month.baseDate.addDays(i);
    cell.day = FormatDate(cell.date, QStringLiteral("d"), locale);
    cell.dateValue = ShortDate(cell.date, locale);
  }
}

void HideDays(CalendarMonth &month, const Settings &settings, quint32 backColor) {
  const bool sixWeeks = month.Cell(lastWeekIndex).date.day() > 25;
  for (int i = 1; i <= calendarCells; ++i) {
    CalendarCell &cell = month.Cell(i);
    cell.visible = sixWeeks || i < lastWeekIndex;
    cell.enabled = !BelongsToNeighbour(i, cell.date.day());
    cell.lossVisible = cell.visible && settings.ShowLoss;
    cell.caloriesVisible = cell.visible && cell.enabled && settings.ShowCalories;
    cell.background = cell.enabled ? calendar_colour::white : calendar_colour::buttonFace;
  }
  month.Total(calendarRows).visible = sixWeeks;
  if (month.CanEnter(month.currentIndex)) month.Cell(month.currentIndex).background = backColor;
}

void UpdateWeeklyTotals(CalendarMonth &month, const Settings &settings, const QLocale &locale) {
  std::array<double, calendarRows> weeks{};
  double whole = 0;
  for (int i = 1; i <= calendarCells; ++i) {
    const CalendarCell &cell = month.Cell(i);
    if (!cell.visible || cell.loss.isEmpty()) continue;
    const double loss = ValueOrZero(cell.loss, locale);
    weeks[static_cast<size_t>(RowOfCell(i) - 1)] += loss;
    if (cell.enabled) whole += loss;
  }
  for (int row = 1; row <= calendarRows; ++row) {
    ShowTotal(month.Total(row), weeks[static_cast<size_t>(row - 1)], settings, locale);
  }
  ShowTotal(month.monthTotal, whole, settings, locale);
}

void ColorLossCells(CalendarMonth &month, const Settings &settings, const QLocale &locale) {
  for (CalendarCell &cell : month.cells) {
    if (cell.visible && !cell.loss.isEmpty()) cell.lossColor = ColourOf(ValueOrZero(cell.loss, locale), settings);
  }
}

void MarkActiveCell(CalendarMonth &month, int i, quint32 backColor) {
  if (month.currentIndex >= 1) {
    CalendarCell &previous = month.Cell(month.currentIndex);
    previous.background = previous.enabled ? calendar_colour::white : calendar_colour::buttonFace;
  }
  month.currentIndex = i;
  month.currentDate = month.Cell(i).date;
  month.Cell(i).background = backColor;
}

int ArrowTarget(const CalendarMonth &month, int i, CalendarArrow arrow) {
  const auto onto = [&month](bool within, int target) { return within && month.CanEnter(target) ? target : 0; };
  switch (arrow) {
    case CalendarArrow::Right:
      return onto(i <= 36, i + 1);
    case CalendarArrow::Left:
      return onto(i >= 2, i - 1);
    case CalendarArrow::Down:
      return onto(i <= 30, i + 7);
    case CalendarArrow::Up:
      return onto(i >= 8, i - 7);
  }
  return 0;
}

int NextDateCell(const CalendarMonth &month) {
  for (int i = calendarCells; i >= 1; --i) {
    if (!month.CanEnter(i) || month.Cell(i).data.isEmpty()) continue;
    return month.CanEnter(i + 1) ? i + 1 : i;
  }
  return 0;
}

}  // namespace trimlog
