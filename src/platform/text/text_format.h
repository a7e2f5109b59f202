#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <optional>

namespace trimlog {

/// Formats a number by a display pattern: "0", "0.0", "0.00", "0.000", "0.###", "#", "General Number" (up to 15
/// digits), "Standard" (two decimals, grouped), "Fixed" (two decimals), "Percent" (times 100, two decimals and %).
/// Halves go away from zero. The decimal sign and the grouping sign are the locale's; the default is the plain form for
/// files and statements. Throws invalidSql (unknown pattern).
QString Format(double value, const QString &pattern, const QLocale &locale = QLocale::c());

/// Formats a date: "short date" (the locale's), "mmmm, yyyy", "mmm", "d", "dd", "m", "mm", "yy", "yyyy", "ddd", "dddd",
/// "w" and literal characters between them. An invalid date gives "".
QString FormatDate(const QDate &date, const QString &pattern, const QLocale &locale = QLocale::c());

/// A double in its shortest plain form: "93.5", "1234", "-0.25"; never an exponent below 1e15.
QString PlainText(double value);

/// A typed number. Blanks around it are ignored; the locale's decimal sign counts, and in a comma locale the point too.
/// A grouping sign counts only where it stands between whole groups before a decimal sign or cannot be taken for a
/// decimal sign: "93,5" is never 935 and "1.234" never 1234 (both are 93.5 and 1.234 in a comma locale). Full-width
/// digits are digits. Empty, "12.3.4", "1e309", "nan" and "inf" are no numbers.
std::optional<double> ParseNumber(const QString &text, const QLocale &locale = QLocale::c());
bool IsNumeric(const QString &text, const QLocale &locale = QLocale::c());
/// The number that a text begins with, 0 when it begins with none; point only, whatever the locale ("12.5 lbs"
/// -> 12.5).
double Val(const QString &text);
/// 0 for empty or non-numeric text.
double ValueOrZero(const QString &text, const QLocale &locale = QLocale::c());

/// A typed date, in the locale's short form (2- or 4-digit year: 00-29 is 20xx, 30-99 is 19xx), ISO form, or with the
/// month's name. Years 100 to 9999; anything else is no date (an invalid QDate).
QDate ParseDate(const QString &text, const QLocale &locale = QLocale::c());
bool IsDate(const QString &text, const QLocale &locale = QLocale::c());
/// The locale's short date with a four-digit year.
QString ShortDate(const QDate &date, const QLocale &locale = QLocale::c());

/// "#m/d/yyyy#" with unpadded parts, in every locale; "" for an invalid date.
QString SQLDate(const QDate &date);

/// Interval codes: "yyyy" year, "q" quarter, "m" month, "d" day, "w" weekday, "ww" week. DateAdd clips to the month's
/// last day. DateDiff counts boundaries crossed. DatePart("w") is 1 for Sunday. Unknown codes throw invalidSql.
QDate DateAdd(const QString &interval, int count, const QDate &date);
int DateDiff(const QString &interval, const QDate &from, const QDate &to);
int DatePart(const QString &interval, const QDate &date);

/// `text` with every `find` replaced, left to right, going on behind each replacement.
QString ReplaceText(const QString &text, const QString &find, const QString &replacement);
/// Double quotes become two single quotes: the form in which names and messages are kept.
QString WithoutDoubleQuotes(const QString &text);

}  // namespace trimlog
