#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/text/text_format.h"
#include "support/locales.h"

namespace trimlog {
namespace {

const QLocale british(QLocale::English, QLocale::UnitedKingdom);
const QLocale swedish(QLocale::Swedish, QLocale::Sweden);

TEST(FormatDate, Patterns) {
  struct Case {
    QDate date;
    const char *pattern, *shown;
  };
  const QDate day(2026, 3, 1);  // a Sunday
  const Case cases[] = {{day, "mmmm, yyyy", "March, 2026"},
                        {day, "short date", "3/1/2026"},
                        {day, "Short Date", "3/1/2026"},
                        {day, "d", "1"},
                        {day, "dd", "01"},
                        {day, "mmm", "Mar"},
                        {day, "m/d/yyyy", "3/1/2026"},
                        {day, "mm-dd-yy", "03-01-26"},
                        {day, "ddd d", "Sun 1"},
                        {day, "dddd", "Sunday"},
                        {day, "w", "1"},
                        {QDate(2026, 2, 28), "w", "7"},
                        {QDate(), "short date", ""},
                        {QDate(987, 12, 31), "yyyy", "987"}};
  for (const Case &c : cases) {
    EXPECT_EQ(FormatDate(c.date, c.pattern, us), c.shown) << c.pattern;
  }
  EXPECT_EQ(FormatDate(day, "mmmm, yyyy", german), "März, 2026");
  EXPECT_THROW(FormatDate(day, "hh:nn", us), Error);
}

TEST(ShortDate, IsTheLocalesWithTheWholeYear) {
  const QDate day(1931, 2, 7);
  EXPECT_EQ(ShortDate(day, us), "2/7/1931");
  EXPECT_EQ(ShortDate(day, british), "07/02/1931");
  EXPECT_EQ(ShortDate(day, german), "07.02.1931");
  EXPECT_EQ(ShortDate(day, swiss), "07.02.1931");
  EXPECT_EQ(ShortDate(day, french), "07/02/1931");
  EXPECT_EQ(ShortDate(day, swedish), "1931-02-07");
  EXPECT_EQ(ShortDate(day), "1931-02-07");
  EXPECT_EQ(ShortDate(QDate(), us), QString());
}

TEST(ParseDate, ReadsWhatShortDateShows) {
  for (const QLocale &locale : {us, british, german, swiss, french, swedish, QLocale::c(), QLocale(QLocale::Hungarian),
                                QLocale(QLocale::Japanese), QLocale(QLocale::Korean), QLocale(QLocale::Arabic)}) {
    for (const QDate &day : {QDate(2026, 12, 1), QDate(1931, 2, 7), QDate(2024, 2, 29)}) {
      EXPECT_EQ(ParseDate(ShortDate(day, locale), locale), day)
          << locale.name().toStdString() << ' ' << ShortDate(day, locale).toStdString();
    }
  }
}

TEST(ParseDate, TypedForms) {
  struct Case {
    const char *text;
    QLocale locale;
    QDate date;
  };
  const QDate day(2026, 3, 1);
  const Case cases[] = {{"3/1/2026", us, day},
                        {"03/01/26", us, day},
                        {" 3-1-2026 ", us, day},
                        {"1.3.2026", german, day},
                        {"01.03.26", german, day},
                        {"1/3/2026", french, day},
                        {"2026-03-01", us, day},
                        {"2026-03-01", german, day},
                        {"2026/3/1", us, day},
                        {"March 1, 2026", us, day},
                        {"1 Mar 2026", us, day},
                        {"1. März 2026", german, day},
                        {"1 mars 2026", french, day},
                        {"March 1, 2026", german, day},
                        {"１/１/2026", us, QDate(2026, 1, 1)},
                        {"1/1/29", us, QDate(2029, 1, 1)},
                        {"1/1/30", us, QDate(1930, 1, 1)},
                        {"1/1/0100", us, QDate(100, 1, 1)},
                        {"2/29/2024", us, QDate(2024, 2, 29)},
                        {"1 Mar 2026", QLocale::c(), day},
                        {"3/1/2026", QLocale::c(), day},
                        {"1/3/2026", swedish, day},
                        {"26-03-01", swedish, day}};
  for (const Case &c : cases) EXPECT_EQ(ParseDate(QString::fromUtf8(c.text), c.locale), c.date) << c.text;
}

TEST(ParseDate, WhatIsNoDate) {
  for (const char *text :
       {"", "  ", "2/29/2023", "13/1/2026", "4/31/2026", "0/1/2026", "1/0/2026", "3/1", "2026", "tomorrow",
        "3/1/2026 10:00", "3/1/12026", "1/1/099", "3/1/2026/4", "Foo 1, 2026", "45000"}) {
    EXPECT_FALSE(IsDate(QString::fromUtf8(text), us)) << text;
  }
}

TEST(SQLDate, IsMonthDayYearEverywhere) {
  EXPECT_EQ(SQLDate(QDate(2026, 3, 1)), "#3/1/2026#");
  EXPECT_EQ(SQLDate(QDate()), QString());
}

TEST(DateArithmetic, AddClipsToTheMonthsEnd) {
  EXPECT_EQ(DateAdd("m", 1, QDate(2026, 1, 31)), QDate(2026, 2, 28));
  EXPECT_EQ(DateAdd("m", -1, QDate(2024, 3, 31)), QDate(2024, 2, 29));
  EXPECT_EQ(DateAdd("yyyy", 1, QDate(2024, 2, 29)), QDate(2025, 2, 28));
  EXPECT_EQ(DateAdd("q", 1, QDate(2025, 11, 30)), QDate(2026, 2, 28));
  EXPECT_EQ(DateAdd("d", -1, QDate(2026, 3, 1)), QDate(2026, 2, 28));
  EXPECT_EQ(DateAdd("ww", 2, QDate(2026, 3, 1)), QDate(2026, 3, 15));
  EXPECT_THROW(DateAdd("h", 1, QDate(2026, 3, 1)), Error);
}

TEST(DateArithmetic, DiffCountsBoundaries) {
  struct Case {
    const char *interval;
    QDate from;
    QDate to;
    int count;
  };
  const Case cases[] = {
      {"yyyy", {2025, 12, 31}, {2026, 1, 1}, 1}, {"yyyy", {2025, 1, 1}, {2025, 12, 31}, 0},
      {"m", {2025, 12, 31}, {2026, 1, 1}, 1},    {"m", {2026, 3, 31}, {2026, 1, 1}, -2},
      {"q", {2025, 12, 31}, {2026, 1, 1}, 1},    {"d", {2026, 2, 28}, {2026, 3, 1}, 1},
      {"d", {2024, 3, 1}, {2024, 2, 28}, -2},    {"ww", {2026, 2, 28}, {2026, 3, 1}, 1},  // Saturday to Sunday
      {"ww", {2026, 3, 1}, {2026, 3, 7}, 0},     {"w", {2026, 3, 1}, {2026, 3, 14}, 1}};
  for (const Case &c : cases) {
    EXPECT_EQ(DateDiff(c.interval, c.from, c.to), c.count)
        << c.interval << ' ' << c.to.toString(Qt::ISODate).toStdString();
  }
  EXPECT_THROW(DateDiff("s", QDate(2026, 1, 1), QDate(2026, 1, 2)), Error);
}

TEST(DateArithmetic, Parts) {
  const QDate day(2026, 11, 22);  // a Sunday
  EXPECT_EQ(DatePart("w", day), 1);
  EXPECT_EQ(DatePart("w", day.addDays(-1)), 7);
  EXPECT_EQ(DatePart("q", day), 4);
  EXPECT_EQ(DatePart("y", day), 326);
  EXPECT_EQ(DatePart("ww", QDate(2026, 1, 1)), 1);
  EXPECT_EQ(DatePart("ww", QDate(2026, 1, 4)), 2);
  EXPECT_THROW(DatePart("z", day), Error);
}

}  // namespace
}  // namespace trimlog
