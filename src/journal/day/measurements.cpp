#include "journal/day/measurements.h"

#include "core/session/session.h"
#include "health/body_formulas.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

/// Without the dust that decimals leave in binary: 11 - 10.755 is 0.245.
double WithoutDust(double value) { return RoundHalfAway(value, 9); }
double Lost(double before, double after) { return WithoutDust(before - after); }

}  // namespace

PreviousMeasurements LoadPreviousMeasurements(const Session &session, const QDate &date) {
  const Recordset row = session.Data().OpenRecordset(
      QStringLiteral("SELECT measurements.ThisDate, measurements.Biceps, measurements.Forearm, measurements.Thigh, "
                     "measurements.Calf, measurements.Chest, measurements.Waist, measurements.Hips, "
                     "measurements.BodyFat FROM measurements WHERE (((measurements.PersonID)=?) AND "
                     "((measurements.ThisDate)<?)) ORDER BY measurements.ThisDate DESC;"),
      {session.profile.CurrentPersonID.toInt(), date}, RecordsetKind::Forward);
  if (row.Eof()) return {QStringLiteral("Previous (none)"), {}};
  PreviousMeasurements previous;
  const QDate day = row.Field(QStringLiteral("ThisDate")).toDate();
  previous.heading = QStringLiteral("Previous (%1)").arg(ShortDate(day, session.locale));
  for (std::size_t i = 0; i < measurementFields.size(); ++i) {
    previous.values[i] = row.Number(QLatin1StringView(measurementFields[i].column));
  }
  return previous;
}

PerMeasurement<QString> MeasurementDifferences(const PreviousMeasurements &previous,
                                               const PerMeasurement<QString> &typed, int UomID, const QLocale &locale) {
  PerMeasurement<QString> differences;
  differences.fill(QStringLiteral("--"));
  for (std::size_t i = 0; i < measurementFields.size(); ++i) {
    const std::optional<double> current = ParseNumber(typed[i], locale);
    if (!current) break;
    const bool twoDecimals = UomID == poundsSystem || i == bodyFatField;
    differences[i] = Format(Lost(previous.values[i], *current),
                            twoDecimals ? QStringLiteral("0.00") : QStringLiteral("0.0"), locale);
  }
  return differences;
}

PerMeasurement<QString> MeasurementTotals(const PerMeasurement<QString> &oldest, const PerMeasurement<QString> &current,
                                          const QLocale &locale) {
  PerMeasurement<QString> totals;
  for (std::size_t i = 0; i < measurementFields.size(); ++i) {
    const double lost = Lost(ValueOrZero(oldest[i], locale), ValueOrZero(current[i], locale));
    totals[i] = Format(lost, QStringLiteral("0.00"), locale) + QLatin1Char(' ');
  }
  return totals;
}

std::optional<QString> BodyFatFromWaist(const Session &session, const QString &waist, const QDate &date) {
  const std::optional<double> size = ParseNumber(waist, session.locale);
  if (!size || !date.isValid()) return std::nullopt;
  const double fraction = CalcBodyFat(session, *size, 0, 0, date);
  return Format(WithoutDust(fraction * 100), QStringLiteral("Fixed"), session.locale);
}

}  // namespace trimlog
