#include "platform/store/stored_value.h"

#include <QDate>
#include <QDateTime>
#include <QTime>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/error.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

QString Shown(const QVariant &value) {
  const QString text = ValueText(value);
  return text.size() > 60 ? text.left(60) + QStringLiteral("...") : text;
}

[[noreturn]] void Mismatch(const QVariant &value, const QString &column, const QString &wanted) {
  throw Error(error_number::typeMismatch,
              QStringLiteral("'%1' is not %2, which %3 takes.").arg(Shown(value), wanted, column));
}

double AsNumber(const QVariant &value, const QString &column) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return value.toBool() ? 1 : 0;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Double:
      return value.toDouble();
    default:
      break;
  }
  bool ok = false;
  const double number = value.typeId() == QMetaType::QString ? value.toString().trimmed().toDouble(&ok) : 0;
  if (!ok || !std::isfinite(number)) Mismatch(value, column, QStringLiteral("a number"));
  return number;
}

QVariant AsWhole(const QVariant &value, const QString &column, qint64 low, qint64 high) {
  const double rounded = std::nearbyint(AsNumber(value, column));
  if (!(rounded >= static_cast<double>(low) && rounded <= static_cast<double>(high))) {
    throw Error(error_number::overflow,
                QStringLiteral("Overflow: %1 takes whole numbers from %2 to %3, and %4 does not fit.")
                    .arg(column)
                    .arg(low)
                    .arg(high)
                    .arg(Shown(value)));
  }
  return static_cast<qint64>(rounded);
}

// The 32-bit number, written as the shortest decimals that name it: 0.1 stays 0.1 and not 0.10000000149.
QVariant AsSingle(const QVariant &value, const QString &column) {
  const double number = AsNumber(value, column);
  const float narrow = static_cast<float>(number);
  if (std::isinf(narrow)) {
    throw Error(error_number::overflow, QStringLiteral("Overflow: %1 does not fit into %2.").arg(Shown(value), column));
  }
  char digits[48];
  const auto written = std::to_chars(digits, digits + sizeof digits, narrow);
  double shortest = number;
  std::from_chars(digits, written.ptr, shortest);
  return shortest;
}

QVariant AsBoolean(const QVariant &value, const QString &column) {
  if (value.typeId() == QMetaType::QString) {
    const QString text = value.toString();
    if (text.compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0) return qint64{1};
    if (text.compare(QLatin1StringView("False"), Qt::CaseInsensitive) == 0) return qint64{0};
  }
  return qint64{AsNumber(value, column) != 0 ? 1 : 0};
}

QVariant AsDate(const QVariant &value, const QString &column) {
  QDate date;
  if (value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime) {
    date = value.toDate();
  } else if (value.typeId() == QMetaType::QString) {
    const QString text = value.toString();
    const bool timed = text.size() > 10 && (text[10] == QLatin1Char(' ') || text[10] == QLatin1Char('T'));
    date = QDate::fromString(timed ? text.left(10) : text, Qt::ISODate);
  }
  if (!date.isValid()) Mismatch(value, column, QStringLiteral("a date"));
  return date.toString(Qt::ISODate);
}

QVariant AsText(const QVariant &value, const DeclaredColumn &column, const QString &name) {
  const QString text = ValueText(value);
  if (column.type == ColumnType::Text && column.length > 0 && text.size() > column.length) {
    throw Error(
        error_number::textTooLong,
        QStringLiteral("The text for %1 is too long: it takes up to %2 characters.").arg(name).arg(column.length));
  }
  return text;
}

}  // namespace

QVariant ToStored(const QVariant &value, const DeclaredColumn &column, const QString &name) {
  if (value.isNull() && value.typeId() != QMetaType::QString) {
    return column.type == ColumnType::Boolean ? QVariant(qint64{0}) : QVariant();
  }
  switch (column.type) {
    case ColumnType::Boolean:
      return AsBoolean(value, name);
    case ColumnType::Byte:
      return AsWhole(value, name, 0, 255);
    case ColumnType::Integer:
      return AsWhole(value, name, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
    case ColumnType::Long:
      return AsWhole(value, name, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
    case ColumnType::Single:
      return AsSingle(value, name);
    case ColumnType::Double:
      return AsNumber(value, name);
    case ColumnType::Decimal2:
      return RoundHalfAway(AsNumber(value, name), 2);
    case ColumnType::Date:
      return AsDate(value, name);
    case ColumnType::Text:
    case ColumnType::Memo:
      break;
  }
  return AsText(value, column, name);
}

QVariant FromStored(const QVariant &stored, std::optional<ColumnType> type) {
  if (!stored.isValid()) return {};
  const bool number = stored.typeId() == QMetaType::LongLong || stored.typeId() == QMetaType::Double;
  switch (type.value_or(ColumnType::Long)) {
    case ColumnType::Boolean:
      return number ? QVariant(stored.toDouble() != 0) : stored;
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
      break;
    case ColumnType::Single:
    case ColumnType::Double:
    case ColumnType::Decimal2:
      return number ? QVariant(stored.toDouble()) : stored;
    case ColumnType::Date: {
      const QDate date = QDate::fromString(stored.toString(), Qt::ISODate);
      return date.isValid() ? QVariant(date) : stored;
    }
    case ColumnType::Text:
    case ColumnType::Memo:
      return number ? QVariant(ValueText(stored)) : stored;
  }
  if (stored.typeId() == QMetaType::LongLong) {
    const qint64 whole = stored.toLongLong();
    if (whole == static_cast<int>(whole)) return static_cast<int>(whole);
  }
  return stored;
}

QVariant ToBound(const QVariant &value) {
  switch (value.typeId()) {
    case QMetaType::UnknownType:
      return {};
    case QMetaType::QString:
      return value;
    case QMetaType::Bool:
      return qint64{value.toBool() ? 1 : 0};
    case QMetaType::Double:
    case QMetaType::Float:
      return value.toDouble();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UChar:
      return value.toLongLong();
    case QMetaType::QDate:
    case QMetaType::QDateTime: {
      const QDate date = value.toDate();
      return date.isValid() ? QVariant(date.toString(Qt::ISODate)) : QVariant();
    }
    case QMetaType::QChar:
      return value.toString();
    default:
      break;
  }
  if (value.isNull()) return {};
  throw Error(
      error_number::typeMismatch,
      QStringLiteral("A value of the kind %1 cannot be kept in a data file.").arg(QLatin1StringView(value.typeName())));
}

QString ValueText(const QVariant &value) {
  switch (value.typeId()) {
    case QMetaType::UnknownType:
      return QString();
    case QMetaType::QString:
      return value.toString();
    case QMetaType::Bool:
      return value.toBool() ? QStringLiteral("-1") : QStringLiteral("0");
    case QMetaType::Double:
      return PlainText(value.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
      return value.toDate().toString(Qt::ISODate);
    default:
      return value.toString();
  }
}

}  // namespace trimlog
