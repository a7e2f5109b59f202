#include "platform/text/text_format.h"
#include "support/locales.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/error.h"
#include "platform/text/rounding.h"

namespace trimlog {
namespace {

int NumberOf(const std::function<void()> &work) {
  try {
    work();
  } catch (const Error &error) {
    return error.Number();
  }
  return 0;
}

TEST(Rounding, TheThreeRoundingsDiffer) {
  struct Case {
    double value, halfUp;
    int halfEven;
    double halfAway;
  };
  for (const Case &c : {Case{2.5, 3, 2, 3}, Case{3.5, 4, 4, 4}, Case{-2.5, -2, -2, -3}, Case{-3.5, -3, -4, -4},
                        Case{0.5, 1, 0, 1}, Case{-0.5, 0, 0, -1}, Case{2.4999, 2, 2, 2}}) {
    EXPECT_EQ(RoundTo(c.value, 0), c.halfUp) << c.value;
    EXPECT_EQ(Whole(c.value), c.halfEven) << c.value;
    EXPECT_EQ(WholeLong(c.value), c.halfEven) << c.value;
    EXPECT_EQ(RoundHalfAway(c.value, 0), c.halfAway) << c.value;
  }
}

TEST(Rounding, DecimalHalvesGoByTheDigitsThatPeopleSee) {
  EXPECT_EQ(RoundHalfAway(1.005, 2), 1.01);  // in binary it lies below the half
  EXPECT_EQ(RoundHalfAway(-1.005, 2), -1.01);
  EXPECT_EQ(RoundHalfAway(9.995, 2), 10.0);
  EXPECT_EQ(RoundHalfAway(149, -2), 100);
  EXPECT_EQ(RoundHalfAway(0.004, 2), 0);
  EXPECT_EQ(RoundHalfAway(1e300, 2), 1e300);
  EXPECT_EQ(RoundTo(3.25, 1), 3.3);
  EXPECT_EQ(RoundTo(-3.25, 1), -3.2);
}

TEST(Rounding, WhatDoesNotFitIsRefused) {
  EXPECT_EQ(Whole(32767.4), 32767);
  EXPECT_EQ(Whole(-32768), -32768);
  EXPECT_EQ(WholeLong(2147483647), 2147483647);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {32767.5, -32769.0, 1e300, infinity, nan}) {
    EXPECT_EQ(NumberOf([value] { Whole(value); }), error_number::overflow) << value;
  }
  for (const double value : {2147483647.5, -2147483649.0, infinity, nan}) {
    EXPECT_EQ(NumberOf([value] { WholeLong(value); }), error_number::overflow) << value;
  }
}

TEST(Format, Patterns) {
  struct Case {
    double value;
    const char *pattern, *shown;
  };
  const Case cases[] = {{1.25, "0.0", "1.3"},
                        {-1.25, "0.0", "-1.3"},
                        {1.005, "0.00", "1.01"},
                        {0, "0", "0"},
                        {0, "#", ""},
                        {0.4, "0", "0"},
                        {0.5, "0", "1"},
                        {5, "0.###", "5"},
                        {0.375, "0.###", "0.375"},
                        {1.33333, "0.###", "1.333"},
                        {1.5, "0.0##", "1.5"},
                        {2, "0.0##", "2.0"},
                        {7, "000", "007"},
                        {-0.04, "0.0", "0.0"},
                        {-0.05, "0.0", "-0.1"},
                        {999.995, "0.00", "1000.00"},
                        {0.25, "#.##", ".25"},
                        {1234567.891, "#,##0.00", "1,234,567.89"},
                        {999, "#,##0", "999"},
                        {-1234, "#,##0", "-1,234"},
                        {1234.5, "Standard", "1,234.50"},
                        {1234.5, "Fixed", "1234.50"},
                        {0.2345, "Percent", "23.45%"},
                        {1, "percent", "100.00%"},
                        {0.5, "0%", "50%"},
                        {93.5, "General Number", "93.5"},
                        {0.1 + 0.2, "General Number", "0.3"},
                        {-179.17000000000002, "General Number", "-179.17"},
                        {1e-7, "0.000", "0.000"},
                        {123456789012.0, "0", "123456789012"}};
  for (const Case &c : cases) {
    EXPECT_EQ(Format(c.value, c.pattern), c.shown) << c.value << " as " << c.pattern;
  }
}

TEST(Format, SignsAreTheLocales) {
  EXPECT_EQ(Format(1234.5, "Standard", us), "1,234.50");
  EXPECT_EQ(Format(1234.5, "Standard", german), "1.234,50");
  EXPECT_EQ(Format(1234.5, "Standard", swiss), "1’234.50");
  EXPECT_EQ(Format(1234.5, "Standard", french), "1\u202F234,50");
  EXPECT_EQ(Format(-0.5, "0.0", german), "-0,5");
  EXPECT_EQ(Format(93.5, "General Number", german), "93,5");
}

TEST(Format, AnUnknownPatternIsNamed) {
  for (const char *pattern : {"0.0.0", "x", "Currency", "0 lbs", "%", "."}) {
    EXPECT_EQ(NumberOf([pattern] { Format(1, pattern); }), error_number::invalidSql) << pattern;
  }
}

TEST(PlainText, ReadsBackAsTheSameNumber) {
  struct Case {
    double value;
    const char *text;
  };
  for (const Case &c : {Case{93.5, "93.5"}, Case{1234, "1234"}, Case{-0.25, "-0.25"}, Case{0, "0"}, Case{-0.0, "0"},
                        Case{0.1 + 0.2, "0.30000000000000004"}, Case{123456789012345, "123456789012345"},
                        Case{0.00001, "0.00001"}, Case{1e15, "1E+15"}}) {
    EXPECT_EQ(PlainText(c.value), c.text);
    EXPECT_EQ(ParseNumber(PlainText(c.value)), std::optional(c.value));
  }
}

TEST(ParseNumber, ByLocale) {
  struct Case {
    const char *text;
    std::optional<double> us, german, swiss, french;
  };
  const std::optional<double> no;
  const Case cases[] = {{"93.5", 93.5, 93.5, 93.5, 93.5},
                        {"93,5", no, 93.5, no, 93.5},           // never 935
                        {"1.234", 1.234, 1.234, 1.234, 1.234},  // never 1234
                        {"1,234", 1234, 1.234, no, 1.234},
                        {"1.234,5", no, 1234.5, no, no},
                        {"1,234.5", 1234.5, no, no, no},
                        {"1.234.567", no, 1234567, no, no},
                        {"1,234,567.89", 1234567.89, no, no, no},
                        {"1’234.50", no, no, 1234.5, no},
                        {"1'234.50", no, no, 1234.5, no},
                        {"1 234,5", no, no, no, 1234.5},
                        {"1\u202F234,5", no, no, no, 1234.5},
                        {"1\u00A0234", no, no, no, 1234},
                        {"12.34.567", no, no, no, no},
                        {"1234,567.8", no, no, no, no},
                        {"0,123", no, 0.123, no, 0.123}};
  for (const Case &c : cases) {
    const QString text = QString::fromUtf8(c.text);
    EXPECT_EQ(ParseNumber(text, us), c.us) << "US " << c.text;
    EXPECT_EQ(ParseNumber(text, german), c.german) << "German " << c.text;
    EXPECT_EQ(ParseNumber(text, swiss), c.swiss) << "Swiss " << c.text;
    EXPECT_EQ(ParseNumber(text, french), c.french) << "French " << c.text;
  }
}

TEST(ParseNumber, WhatANumberLooksLike) {
  struct Case {
    const char *text;
    double value;
  };
  for (const Case &c : {Case{" 185.5\r\n", 185.5}, Case{"\t7 ", 7}, Case{"１８５．５", 185.5}, Case{"-3", -3},
                        Case{"−3", -3}, Case{"+4", 4}, Case{".5", 0.5}, Case{"5.", 5}, Case{"1e3", 1000},
                        Case{"2.5E-2", 0.025}, Case{"1e-400", 0}, Case{"-0", 0}}) {
    EXPECT_EQ(ParseNumber(QString::fromUtf8(c.text)), std::optional(c.value)) << c.text;
  }
}

TEST(ParseNumber, WhatIsNoNumber) {
  for (const char *text : {"",     "   ", "12.3.4", "1e309", "nan",   "inf", "-inf",   "infinity", "0x10",
                           "&H10", "1f",  "12 lbs", "--1",   "+-1",   "-",   ".",      ",",        "e5",
                           "1e",   "1e+", "1 2",    "5-",    "1_000", "½",   "1,,234", ",234",     "1,23,456"}) {
    EXPECT_FALSE(IsNumeric(QString::fromUtf8(text), us)) << text;
    EXPECT_EQ(ValueOrZero(QString::fromUtf8(text), us), 0) << text;
  }
  EXPECT_FALSE(IsNumeric(QString(10000, u'9'), us));
}

TEST(Val, TakesTheLeadingNumber) {
  struct Case {
    const char *text;
    double value;
  };
  for (const Case &c : {Case{"12.5 lbs", 12.5}, Case{"  7", 7}, Case{"93,5", 93}, Case{"abc", 0}, Case{"", 0},
                        Case{"-4x", -4}, Case{"1e2", 100}, Case{"1.2.3", 1.2}, Case{".5 cup", 0.5}, Case{"-", 0}}) {
    EXPECT_EQ(Val(QString::fromUtf8(c.text)), c.value) << c.text;
  }
}

TEST(ReplaceText, GoesOnBehindTheReplacement) {
  EXPECT_EQ(ReplaceText("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(ReplaceText("aaa", "aa", "a"), "aa");
  EXPECT_EQ(ReplaceText("abc", QString(), "x"), "abc");
  EXPECT_EQ(WithoutDoubleQuotes("5\" pipe"), "5'' pipe");
}

}  // namespace
}  // namespace trimlog
