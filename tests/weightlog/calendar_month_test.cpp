#include "weightlog/calendar_month.h"

#include <gtest/gtest.h>

#include "platform/text/text_format.h"
#include "weightlog/calendar_speech.h"

namespace trimlog {
namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);
constexpr quint32 blue = 0xFFE0C0;

CalendarMonth MonthOf(int year, int number, const Settings &settings = {}) {
  CalendarMonth month;
  FillCalendarDates(month, QDate(year, number, 15), english);
  HideDays(month, settings, blue);
  return month;
}

TEST(CalendarMonth, PlacesTheDaysAndHidesWhatBelongsToNoWeekOfTheMonth) {
  struct Case {
    int year, month;
    int firstCell, lastCell;  // of the month itself
    bool sixWeeks;
  };
  for (const Case &c : {Case{2026, 2, 1, 28, false},     // 28 days from a Sunday on: two weeks of March behind it
                        Case{2026, 3, 1, 31, false},     // starts on a Sunday
                        Case{2026, 8, 7, 37, true},      // 31 days from a Saturday on
                        Case{2026, 5, 6, 36, true},      // the 31st alone in the sixth row
                        Case{2028, 2, 3, 31, false},     // leap year
                        Case{2025, 2, 7, 34, false}}) {  // starts on a Saturday, ends in the fifth row
    SCOPED_TRACE(testing::Message() << c.year << "-" << c.month);
    const CalendarMonth month = MonthOf(c.year, c.month);
    for (int i = 1; i <= calendarCells; ++i) {
      SCOPED_TRACE(i);
      const CalendarCell &cell = month.Cell(i);
      const bool own = i >= c.firstCell && i <= c.lastCell;
      EXPECT_EQ(cell.date, QDate(c.year, c.month, 1).addDays(i - c.firstCell));
      EXPECT_EQ(cell.day, QString::number(cell.date.day()));
      EXPECT_EQ(cell.enabled, own);
      EXPECT_EQ(cell.visible, c.sixWeeks || i <= 35);
      EXPECT_EQ(cell.background, own ? calendar_colour::white : calendar_colour::buttonFace);
      EXPECT_EQ(cell.caloriesVisible, own);
      EXPECT_FALSE(cell.lossVisible);
      EXPECT_EQ(month.IndexOf(cell.date), i);
    }
    EXPECT_EQ(month.Total(6).visible, c.sixWeeks);
  }
  EXPECT_EQ(MonthOf(2026, 2).title, "February, 2026");
  EXPECT_EQ(MonthOf(2026, 2).Cell(3).dateValue, ShortDate(QDate(2026, 2, 3), english));
}

TEST(CalendarMonth, WeekIsNamedByItsSunday) {
  EXPECT_EQ(GetWeekOf(QDate(2026, 3, 1)), QDate(2026, 3, 1));
  EXPECT_EQ(GetWeekOf(QDate(2026, 3, 7)), QDate(2026, 3, 1));
  EXPECT_EQ(GetWeekOf(QDate(2026, 1, 2)), QDate(2025, 12, 28));
}

TEST(CalendarMonth, TotalsCountNeighboursInTheWeekButNotInTheMonth) {
  struct Case {
    int UomID, LossFactor;
    bool ColorCoding;
    const char *losses[3];  // shown on 1, 2 August (cells 7, 8) and on 31 July (cell 6)
    const char *firstWeek, *month;
    quint32 weekColor, monthColor;
  };
  using namespace calendar_colour;
  for (const Case &c : {Case{1, 1, true, {"1.5", "0.3", "-2.0"}, "-0.5", "1.8", gain, loss},
                        Case{2, 1, true, {"1.5", "0.25", "0.5"}, "2.00", "1.75", loss, loss},
                        Case{1, -1, true, {"-1.5", "", "-0.5"}, "-2.0", "-1.5", loss, loss},
                        Case{1, 1, true, {"0.1", "-0.1", "-0.1"}, "0.0", "0.0", even, even},
                        Case{1, 1, true, {"0.3", "-0.1", "-0.2"}, "0.1", "0.2", loss, loss},
                        Case{1, 1, false, {"1.5", "0.5", "0"}, "1.5", "2.0", even, even}}) {
    Settings settings;
    settings.UomID = c.UomID;
    settings.LossFactor = c.LossFactor;
    settings.ColorCoding = c.ColorCoding;
    CalendarMonth month = MonthOf(2026, 8, settings);
    month.Cell(7).loss = QLatin1String(c.losses[0]);
    month.Cell(8).loss = QLatin1String(c.losses[1]);
    month.Cell(6).loss = QLatin1String(c.losses[2]);
    UpdateWeeklyTotals(month, settings, english);
    ColorLossCells(month, settings, english);
    EXPECT_EQ(month.Total(1).text, c.firstWeek);
    EXPECT_EQ(month.Total(1).color, c.weekColor);
    EXPECT_EQ(month.monthTotal.text, c.month);
    EXPECT_EQ(month.monthTotal.color, c.monthColor);
  }
}

TEST(CalendarMonth, LossCellsTakeTheColourOfTheTrueLoss) {
  Settings settings;
  settings.LossFactor = -1;
  CalendarMonth month = MonthOf(2026, 3, settings);
  month.Cell(1).loss = "-2.0";
  month.Cell(2).loss = "0.4";
  month.Cell(3).loss = "0.0";
  ColorLossCells(month, settings, english);
  EXPECT_EQ(month.Cell(1).lossColor, calendar_colour::loss);
  EXPECT_EQ(month.Cell(2).lossColor, calendar_colour::gain);
  EXPECT_EQ(month.Cell(3).lossColor, calendar_colour::even);
}

TEST(CalendarMonth, IsSpokenWithWhatItShows) {
  struct Case {
    const char *loss, *calories, *tip;
    bool showsLoss, showsCalories;
    int LossFactor;
    const char *spoken;
  };
  for (const Case &c :
       {Case{"1.5", "600 kcal", "", true, true, 1, "Lost 1.5. Figure: 600 kcal"},
        Case{"-1.5", "", "", true, true, 1, "Gained 1.5"}, Case{"-1.5", "", "", true, true, -1, "Lost 1.5"},
        Case{"0.0", "", "", true, true, -1, "No loss"},
        Case{"1.5", "7 Cal", "9 eaten - 2 burned = 7 Cal", false, true, 1, "Figure: 9 eaten - 2 burned = 7 Cal"},
        Case{"1.5", "600 kcal", "", true, false, 1, "Lost 1.5"}, Case{"", "", "", true, true, 1, ""}}) {
    Settings settings;
    settings.LossFactor = c.LossFactor;
    CalendarCell cell;
    cell.loss = c.loss;
    cell.calories = c.calories;
    cell.caloriesTip = c.tip;
    cell.lossVisible = c.showsLoss;
    cell.caloriesVisible = c.showsCalories;
    EXPECT_EQ(SpokenDetails(cell, "Figure", settings, english), c.spoken);
  }
}

TEST(CalendarMonth, ArrowsMoveOntoDaysOfTheMonthOnly) {
  const CalendarMonth august = MonthOf(2026, 8);  // cells 7 to 37
  struct Case {
    int from;
    CalendarArrow arrow;
    int to;
  };
  using enum CalendarArrow;
  for (const Case &c : {Case{7, Left, 0}, Case{7, Up, 0}, Case{7, Right, 8}, Case{7, Down, 14}, Case{30, Down, 37},
                        Case{31, Down, 0}, Case{36, Right, 37}, Case{37, Right, 0}, Case{37, Up, 30}, Case{14, Up, 7},
                        Case{13, Up, 0}, Case{37, Left, 36}}) {
    EXPECT_EQ(ArrowTarget(august, c.from, c.arrow), c.to) << c.from;
  }
}

TEST(CalendarMonth, GoesOnBehindTheLastWeightOfTheMonth) {
  CalendarMonth month = MonthOf(2026, 8);
  month.Cell(6).data = "200";  // July's
  EXPECT_EQ(NextDateCell(month), 0);
  month.Cell(10).data = "199";
  EXPECT_EQ(NextDateCell(month), 11);
  month.Cell(37).data = "198";  // the 31st
  EXPECT_EQ(NextDateCell(month), 37);
}

}  // namespace
}  // namespace trimlog
