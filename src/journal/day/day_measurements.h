#pragma once

#include <QDate>
#include <map>

#include "journal/day/measurements.h"
#include "platform/printing/printing.h"

namespace trimlog {

/// The one set of measurements of a day, as its boxes show it.
struct DayMeasurements {
  std::optional<int> RecordID;  ///< none: the day has no measurements
  PerMeasurement<std::optional<double>> values{};
};
DayMeasurements ReadDayMeasurements(const Session &session, const QDate &date);

/// Stores the sizes that were typed, by field, into the set shown. A set that somebody deleted meanwhile is made anew
/// of what was shown and typed. One transaction.
DayMeasurements StoreDayMeasurements(Session &session, const QDate &date, DayMeasurements shown,
                                     const std::map<std::size_t, std::optional<double>> &typed);

/// A measurement as it can be stored: a number that is not negative. `blank` says whether an empty text is one too, and
/// then has no value.
bool IsMeasurement(const QString &text, const QLocale &locale, bool blank);

/// What a refused measurement is told: title and text.
struct MeasurementRefusal {
  QString title;
  QString text;
};
MeasurementRefusal RefusalOf(std::size_t field);

/// A day's measurements as a list to print: size, previous one, difference.
PrintedList MeasurementsToPrint(const Session &session, const QDate &date, const PerMeasurement<QString> &current);

}  // namespace trimlog
