#include <QRegularExpression>
#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/text/text_format.h"

namespace trimlog {

namespace {

bool IsBlank(QChar c) { return c.isSpace() || c == QChar(0xFEFF) || c == QChar(0x200B); }

/// The text in the signs that the parser knows: ASCII digits, '-' for every minus, ' ' for every blank between digits,
/// '\'' for every apostrophe, full-width signs as the plain ones; nothing around it.
QString Simplified(const QString &text) {
  qsizetype first = 0;
  qsizetype last = text.size();
  while (first < last && IsBlank(text[first])) ++first;
  while (last > first && IsBlank(text[last - 1])) --last;

  QString simple;
  for (const QChar c : QStringView(text).mid(first, last - first)) {
    switch (c.unicode()) {
      case 0x2212:
      case 0xFF0D:
        simple += u'-';
        break;
      case 0xFF0B:
        simple += u'+';
        break;
      case 0xFF0C:
      case 0x066B:
        simple += u',';
        break;
      case 0xFF0E:
        simple += u'.';
        break;
      case 0x2019:
        simple += u'\'';
        break;
      case 0x200E:
      case 0x200F:
      case 0x061C:
        break;  // direction marks around a sign
      default:
        if (c.digitValue() >= 0 && c.category() == QChar::Number_DecimalDigit) {
          simple += QChar(u'0' + c.digitValue());
        } else {
          simple += c.isSpace() && c.category() == QChar::Separator_Space ? QChar(u' ') : c;
        }
    }
  }
  return simple;
}

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool AllDigits(QStringView text) { return std::all_of(text.begin(), text.end(), IsDigit); }

/// "1.234.567" with '.' as the sign: one to three digits, then threes.
bool StandsBetweenWholeGroups(QStringView whole, QChar sign) {
  const auto groups = whole.split(sign);
  for (qsizetype i = 0; i < groups.size(); ++i) {
    const qsizetype length = groups[i].size();
    if (!AllDigits(groups[i]) || length > 3 || length < (i == 0 ? 1 : 3)) return false;
  }
  return groups.front().front() != u'0';
}

struct Signs {
  QChar decimal;
  QChar grouping;
  bool pointIsDecimalToo = false;  ///< a comma locale: people type the keypad's point as well
};

Signs SignsOf(const QLocale &locale) {
  const QString decimal = Simplified(locale.decimalPoint());
  // A grouping sign that is a blank vanishes when simplified; it is still a blank between groups.
  const QString grouping = Simplified(locale.groupSeparator());
  Signs signs{decimal == QLatin1String(",") ? QChar(u',') : QChar(u'.'),
              grouping.isEmpty() ? QChar(u' ') : grouping[0]};
  signs.pointIsDecimalToo = signs.decimal == u',';
  return signs;
}

/// The decimal sign's place in the text, -1 for none.
qsizetype DecimalSignAt(const QString &text, const Signs &signs) {
  const qsizetype at = text.indexOf(signs.decimal);
  if (at >= 0) return at;
  if (signs.pointIsDecimalToo && text.count(u'.') == 1) return text.indexOf(u'.');
  return -1;
}

/// Plain unsigned digits "1234.5" of a typed form, or nothing.
std::optional<QString> PlainDigits(const QString &text, const Signs &signs) {
  const qsizetype at = DecimalSignAt(text, signs);
  const QString decimals = at < 0 ? QString() : text.mid(at + 1);
  QString whole = at < 0 ? text : text.left(at);
  if (!AllDigits(decimals)) return std::nullopt;
  if (!AllDigits(whole)) {
    if (!StandsBetweenWholeGroups(whole, signs.grouping)) return std::nullopt;
    whole.remove(signs.grouping);
  }
  if (whole.isEmpty() && decimals.isEmpty()) return std::nullopt;
  return (whole.isEmpty() ? QStringLiteral("0") : whole) + u'.' + (decimals.isEmpty() ? QStringLiteral("0") : decimals);
}

/// Takes "e5" or "E-5" off the end and gives it back.
std::optional<QString> TakeExponent(QString &text) {
  const qsizetype at = text.indexOf(u'e', 0, Qt::CaseInsensitive);
  if (at < 0) return QString();
  QStringView digits = QStringView(text).mid(at + 1);
  if (!digits.isEmpty() && (digits.front() == u'-' || digits.front() == u'+')) digits = digits.mid(1);
  if (digits.isEmpty() || !AllDigits(digits)) return std::nullopt;
  const QString exponent = text.mid(at).remove(u'+');
  text.truncate(at);
  return exponent;
}

std::optional<double> Finite(const QString &plain) {
  const QByteArray bytes = plain.toLatin1();
  double value = 0;
  const auto [end, error] = std::from_chars(bytes.constData(), bytes.constData() + bytes.size(), value);
  if (error == std::errc::result_out_of_range) {
    // Too small to tell from zero is zero; too large is no number.
    return plain.contains(QLatin1String("e-")) ? std::optional(0.0) : std::nullopt;
  }
  if (error != std::errc() || end != bytes.constData() + bytes.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace

std::optional<double> ParseNumber(const QString &text, const QLocale &locale) {
  QString rest = Simplified(text);
  const bool negative = rest.startsWith(u'-');
  if (negative || rest.startsWith(u'+')) rest.remove(0, 1);
  const std::optional<QString> exponent = TakeExponent(rest);
  if (!exponent) return std::nullopt;
  const std::optional<QString> digits = PlainDigits(rest, SignsOf(locale));
  if (!digits) return std::nullopt;
  const std::optional<double> value = Finite(*digits + *exponent);
  if (!value) return std::nullopt;
  return negative && *value != 0 ? -*value : *value;
}

bool IsNumeric(const QString &text, const QLocale &locale) { return ParseNumber(text, locale).has_value(); }

double ValueOrZero(const QString &text, const QLocale &locale) { return ParseNumber(text, locale).value_or(0); }

double Val(const QString &text) {
  static const QRegularExpression leading(QStringLiteral("^\\s*([-+]?)(\\d+\\.?\\d*|\\.\\d+)([eE][-+]?\\d+)?"));
  const QRegularExpressionMatch match = leading.match(text);
  if (!match.hasMatch()) return 0;
  const QString number = match.captured(2) + match.captured(3);
  return ParseNumber(match.captured(1) + number).value_or(0);
}

}  // namespace trimlog
