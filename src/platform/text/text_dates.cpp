#include <QRegularExpression>

#include "platform/error.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

[[noreturn]] void RefuseDatePattern(const QString &pattern) {
  throw Error(error_number::invalidSql, QStringLiteral("Unknown date pattern '%1'").arg(pattern));
}

bool IsPlainLocale(const QLocale &locale) { return locale.language() == QLocale::C; }

/// The locale's short form in Qt's letters, always with the whole year: two digits leave the century in doubt.
QString ShortPattern(const QLocale &locale) {
  if (IsPlainLocale(locale)) return QStringLiteral("yyyy-MM-dd");
  QString pattern = locale.dateFormat(QLocale::ShortFormat);
  if (!pattern.contains(QLatin1String("yyyy"))) {
    static const QRegularExpression year(QStringLiteral("y+"));
    pattern.replace(year, QStringLiteral("yyyy"));
  }
  return pattern;
}

QString Padded(int value) { return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')); }

/// One run of a pattern letter, such as "mmmm".
QString DatePiece(const QDate &date, const QString &token, bool besideDay, const QLocale &locale) {
  if (token == QLatin1String("d")) return QString::number(date.day());
  if (token == QLatin1String("dd")) return Padded(date.day());
  if (token == QLatin1String("ddd")) return locale.dayName(date.dayOfWeek(), QLocale::ShortFormat);
  if (token == QLatin1String("dddd")) return locale.dayName(date.dayOfWeek(), QLocale::LongFormat);
  if (token == QLatin1String("m")) return QString::number(date.month());
  if (token == QLatin1String("mm")) return Padded(date.month());
  // Some languages inflect a month's name beside a day; alone it stands in its own form.
  if (token == QLatin1String("mmm")) {
    return besideDay ? locale.monthName(date.month(), QLocale::ShortFormat)
                     : locale.standaloneMonthName(date.month(), QLocale::ShortFormat);
  }
  if (token == QLatin1String("mmmm")) {
    return besideDay ? locale.monthName(date.month()) : locale.standaloneMonthName(date.month());
  }
  if (token == QLatin1String("yy")) return Padded(date.year() % 100);
  if (token == QLatin1String("yyyy")) return QString::number(date.year());
  if (token == QLatin1String("w") || token == QLatin1String("ww") || token == QLatin1String("q") ||
      token == QLatin1String("y")) {
    return QString::number(DatePart(token, date));
  }
  return {};
}

/// The number or name at a place of a typed date.
struct TypedPart {
  int number = 0;
  int digits = 0;  ///< 0 for a month's name
};

int MonthNamed(const QString &word, const QLocale &locale) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  for (const QLocale &language : {locale, english}) {
    for (int month = 1; month <= 12; ++month) {
      for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
        for (QString name : {language.monthName(month, format), language.standaloneMonthName(month, format)}) {
          name.remove(u'.');
          if (word.compare(name, Qt::CaseInsensitive) == 0) return month;
        }
      }
    }
  }
  return 0;
}

/// Takes a typed date apart into its numbers and month's name; empty when anything else stands in it.
QList<TypedPart> PartsOf(const QString &text, const QLocale &locale) {
  QList<TypedPart> parts;
  for (qsizetype i = 0; i < text.size();) {
    if (text[i].isDigit()) {
      TypedPart part;
      for (; i < text.size() && text[i].isDigit(); ++i) {
        if (++part.digits > 4) return {};
        part.number = part.number * 10 + text[i].digitValue();
      }
      parts.append(part);
    } else if (text[i].isLetter()) {
      const qsizetype start = i;
      while (i < text.size() && (text[i].isLetter() || text[i].isMark())) ++i;
      const int month = MonthNamed(text.mid(start, i - start), locale);
      if (month == 0) return {};
      parts.append({month, 0});
    } else if (text[i].isSpace() || QStringLiteral("./-,").contains(text[i]) ||
               text[i].category() == QChar::Other_Format) {
      ++i;
    } else {
      return {};
    }
  }
  return parts.size() == 3 ? parts : QList<TypedPart>{};
}

int WholeYear(const TypedPart &part) {
  if (part.digits > 2) return part.number;
  constexpr int firstOfLastCentury = 30;
  return part.number + (part.number < firstOfLastCentury ? 2000 : 1900);
}

QDate MakeDate(const TypedPart &year, const TypedPart &month, const TypedPart &day) {
  if (year.digits == 0 || day.digits == 0 || day.digits > 2 || month.digits > 2) return {};
  const int wholeYear = WholeYear(year);
  if (wholeYear < 100 || wholeYear > 9999) return {};
  return QDate(wholeYear, month.number, day.number);
}

/// The order of day, month and year in the locale, as "dmy", "mdy" or "ymd".
QString PartOrder(const QLocale &locale) {
  QString order;
  for (const QChar c : ShortPattern(locale).toLower()) {
    if ((c == u'd' || c == u'm' || c == u'y') && !order.contains(c)) order += c;
  }
  return order;
}

bool HasBlankOnly(const QString &text) { return text.trimmed().isEmpty(); }

[[noreturn]] void RefuseInterval(const QString &interval) {
  throw Error(error_number::invalidSql, QStringLiteral("Unknown date interval '%1'").arg(interval));
}

/// Sunday on or before a date: weeks begin there.
QDate WeekStart(const QDate &date) { return date.addDays(-(date.dayOfWeek() % 7)); }

}  // namespace

QString FormatDate(const QDate &date, const QString &pattern, const QLocale &locale) {
  if (!date.isValid()) return {};
  const QString name = pattern.toLower();
  if (name == QLatin1String("short date")) return ShortDate(date, locale);
  if (name == QLatin1String("long date")) return locale.toString(date, QLocale::LongFormat);

  static const QRegularExpression dayOfMonth(QStringLiteral("(?<!d)d{1,2}(?!d)"));
  const bool besideDay = name.contains(dayOfMonth);
  QString text;
  for (qsizetype i = 0; i < name.size();) {
    if (!name[i].isLetter()) {
      text += pattern[i++];
      continue;
    }
    const qsizetype start = i;
    while (i < name.size() && name[i] == name[start]) ++i;
    const QString piece = DatePiece(date, name.mid(start, i - start), besideDay, locale);
    if (piece.isEmpty()) RefuseDatePattern(pattern);
    text += piece;
  }
  return text;
}

QString ShortDate(const QDate &date, const QLocale &locale) {
  return date.isValid() ? locale.toString(date, ShortPattern(locale)) : QString();
}

QDate ParseDate(const QString &text, const QLocale &locale) {
  if (HasBlankOnly(text)) return {};
  const QList<TypedPart> parts = PartsOf(text, locale);
  if (parts.isEmpty()) return {};
  const TypedPart &a = parts[0];
  const TypedPart &b = parts[1];
  const TypedPart &c = parts[2];
  if (a.digits > 2) return MakeDate(a, b, c);
  if (a.digits == 0) return MakeDate(c, a, b);  // March 1, 2026
  const QString order = PartOrder(locale);
  // A whole year at the end rules out an order that begins with it.
  const bool yearFirst = order.startsWith(u'y') && c.digits <= 2;
  if (b.digits == 0) return yearFirst ? MakeDate(a, b, c) : MakeDate(c, b, a);  // 26 March 1, 1. März 2026
  // A machine without a locale writes its dates in the American order.
  const QString yearLast = locale.language() == QLocale::C ? QStringLiteral("mdy") : QStringLiteral("dmy");
  const QString used = order.startsWith(u'y') && !yearFirst ? yearLast : order;
  return MakeDate(parts[used.indexOf(u'y')], parts[used.indexOf(u'm')], parts[used.indexOf(u'd')]);
}

bool IsDate(const QString &text, const QLocale &locale) { return ParseDate(text, locale).isValid(); }

QString SQLDate(const QDate &date) {
  if (!date.isValid()) return {};
  return QStringLiteral("#%1/%2/%3#").arg(date.month()).arg(date.day()).arg(date.year());
}

QDate DateAdd(const QString &interval, int count, const QDate &date) {
  const QString code = interval.toLower();
  if (code == QLatin1String("yyyy")) return date.addYears(count);
  if (code == QLatin1String("q")) return date.addMonths(3 * count);
  if (code == QLatin1String("m")) return date.addMonths(count);
  if (code == QLatin1String("d") || code == QLatin1String("y") || code == QLatin1String("w"))
    return date.addDays(count);
  if (code == QLatin1String("ww")) return date.addDays(7LL * count);
  RefuseInterval(interval);
}

int DateDiff(const QString &interval, const QDate &from, const QDate &to) {
  const QString code = interval.toLower();
  const int months = (to.year() - from.year()) * 12 + to.month() - from.month();
  if (code == QLatin1String("yyyy")) return to.year() - from.year();
  if (code == QLatin1String("q")) return (to.year() - from.year()) * 4 + (to.month() - 1) / 3 - (from.month() - 1) / 3;
  if (code == QLatin1String("m")) return months;
  const auto days = static_cast<int>(from.daysTo(to));
  if (code == QLatin1String("d") || code == QLatin1String("y")) return days;
  if (code == QLatin1String("w")) return days / 7;
  if (code == QLatin1String("ww")) return static_cast<int>(WeekStart(from).daysTo(WeekStart(to)) / 7);
  RefuseInterval(interval);
}

int DatePart(const QString &interval, const QDate &date) {
  const QString code = interval.toLower();
  if (code == QLatin1String("yyyy")) return date.year();
  if (code == QLatin1String("q")) return (date.month() - 1) / 3 + 1;
  if (code == QLatin1String("m")) return date.month();
  if (code == QLatin1String("y")) return date.dayOfYear();
  if (code == QLatin1String("d")) return date.day();
  if (code == QLatin1String("w")) return date.dayOfWeek() % 7 + 1;
  if (code == QLatin1String("ww")) {
    return static_cast<int>(WeekStart(QDate(date.year(), 1, 1)).daysTo(WeekStart(date)) / 7) + 1;
  }
  RefuseInterval(interval);
}

}  // namespace trimlog
