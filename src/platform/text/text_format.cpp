#include "platform/text/text_format.h"

#include <algorithm>
#include <cmath>

#include "platform/error.h"
#include "platform/text/decimal_digits.h"

namespace trimlog {

namespace {

/// A display pattern taken apart.
struct NumberPattern {
  int leastWhole = 0;     ///< digits before the decimal sign that are shown even when zero
  int leastDecimals = 0;  ///< digits behind it that are shown even when zero
  int mostDecimals = 0;
  bool grouped = false;
  bool percent = false;
};

[[noreturn]] void RefusePattern(const QString &pattern) {
  throw Error(error_number::invalidSql, QStringLiteral("Unknown format pattern '%1'").arg(pattern));
}

NumberPattern ReadPattern(const QString &pattern) {
  const QString name = pattern.toLower();
  if (name == QLatin1String("standard")) return {1, 2, 2, true, false};
  if (name == QLatin1String("fixed")) return {1, 2, 2, false, false};
  if (name == QLatin1String("percent")) return {1, 2, 2, false, true};

  NumberPattern read;
  bool behindSign = false;
  bool anyDigit = false;
  for (const QChar c : pattern) {
    if (read.percent) RefusePattern(pattern);
    if (c == u'0' || c == u'#') {
      anyDigit = true;
      if (behindSign) {
        ++read.mostDecimals;
        if (c == u'0') read.leastDecimals = read.mostDecimals;
      } else if (c == u'0' || read.leastWhole > 0) {
        ++read.leastWhole;
      }
    } else if (c == u'.' && !behindSign) {
      behindSign = true;
    } else if (c == u',' && anyDigit && !behindSign) {
      read.grouped = true;
    } else if (c == u'%' && anyDigit) {
      read.percent = true;
    } else {
      RefusePattern(pattern);
    }
  }
  if (!anyDigit) RefusePattern(pattern);
  return read;
}

QString DecimalSign(const QLocale &locale) { return locale.decimalPoint(); }

QString WholePart(const DecimalDigits &number, const NumberPattern &pattern, const QLocale &locale) {
  QString text;
  const int count = std::max(number.point, pattern.leastWhole);
  for (int power = count - 1; power >= 0; --power) {
    text += QLatin1Char(number.At(power));
    if (pattern.grouped && power > 0 && power % 3 == 0) text += locale.groupSeparator();
  }
  return text;
}

QString DecimalPart(const DecimalDigits &number, const NumberPattern &pattern) {
  QString text;
  const int present = static_cast<int>(number.digits.size()) - number.point;
  const int count = std::clamp(present, pattern.leastDecimals, pattern.mostDecimals);
  for (int place = 1; place <= count; ++place) text += QLatin1Char(number.At(-place));
  return text;
}

/// What a Double holds beyond 15 digits is dust of binary arithmetic: 0.1 + 0.2 reads 0.3.
double InFifteenDigits(double value) { return QString::number(value, 'e', 14).toDouble(); }

}  // namespace

QString Format(double value, const QString &pattern, const QLocale &locale) {
  if (pattern.isEmpty() || pattern.compare(QLatin1String("General Number"), Qt::CaseInsensitive) == 0) {
    return PlainText(InFifteenDigits(value)).replace(u'.', DecimalSign(locale));
  }
  const NumberPattern shape = ReadPattern(pattern);
  DecimalDigits number = DigitsOf(value);
  if (shape.percent && !number.digits.empty()) number.point += 2;
  number.RoundHalfAway(shape.mostDecimals);

  QString text = WholePart(number, shape, locale);
  const QString decimals = DecimalPart(number, shape);
  if (!decimals.isEmpty()) text += DecimalSign(locale) + decimals;
  if (shape.percent) text += u'%';
  // What rounds to nothing carries no sign: nobody lost "-0.0" pounds.
  if (number.negative && !number.digits.empty()) text.prepend(u'-');
  return text;
}

QString PlainText(double value) {
  constexpr double firstWithExponent = 1e15;
  if (std::isfinite(value) && std::fabs(value) >= firstWithExponent) {
    return QString::number(value, 'g', QLocale::FloatingPointShortest).replace(u'e', u'E');
  }
  constexpr int allDecimals = 400;
  const DecimalDigits number = DigitsOf(value);
  const NumberPattern shape{1, 0, allDecimals, false, false};
  QString text = WholePart(number, shape, QLocale::c());
  const QString decimals = DecimalPart(number, shape);
  if (!decimals.isEmpty()) text += u'.' + decimals;
  if (number.negative && !number.digits.empty()) text.prepend(u'-');
  return text;
}

QString ReplaceText(const QString &text, const QString &find, const QString &replacement) {
  if (find.isEmpty()) return text;
  QString result = text;
  return result.replace(find, replacement);
}

QString WithoutDoubleQuotes(const QString &text) {
  return ReplaceText(text, QStringLiteral("\""), QStringLiteral("''"));
}

}  // namespace trimlog
