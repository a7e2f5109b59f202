#include "journal/day/day_measurements.h"

#include "core/session/change.h"
#include "journal/day/day_records.h"
#include "journal/day/printed_heading.h"
#include "platform/store/recordset.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

bool MeasurementsExist(const Session &session, int recordID) {
  return !session.Data()
              .OpenRecordset(QStringLiteral("SELECT measurements.RecordID FROM measurements WHERE "
                                            "((measurements.PersonID=?) AND (measurements.RecordID=?));"),
                             {session.profile.CurrentPersonID.toInt(), recordID}, RecordsetKind::Forward)
              .Eof();
}

}  // namespace

DayMeasurements ReadDayMeasurements(const Session &session, const QDate &date) {
  const std::optional<int> recordID = MeasurementsOn(session, date);
  return {recordID, recordID ? ReadMeasurements(session, *recordID) : PerMeasurement<std::optional<double>>{}};
}

DayMeasurements StoreDayMeasurements(Session &session, const QDate &date, DayMeasurements shown,
                                     const std::map<std::size_t, std::optional<double>> &typed) {
  for (const auto &[field, value] : typed) shown.values.at(field) = value;
  Change change(session);
  if (!shown.RecordID || !MeasurementsExist(session, *shown.RecordID)) shown.RecordID = MeasurementsOn(session, date);
  if (shown.RecordID) {
    SaveMeasurements(session, *shown.RecordID, typed);
  } else {
    shown.RecordID = AddMeasurements(session, date, shown.values);
  }
  change.Commit();
  return shown;
}

bool IsMeasurement(const QString &text, const QLocale &locale, bool blank) {
  if (text.trimmed().isEmpty()) return blank;
  const std::optional<double> number = ParseNumber(text, locale);
  return number && *number >= 0;
}

MeasurementRefusal RefusalOf(std::size_t field) {
  const QString name = QLatin1String(measurementFields.at(field).name);
  return {QStringLiteral("Invalid ") + name,
          QStringLiteral("Please enter a valid %1 (a numeric value only, with no special characters).").arg(name)};
}

PrintedList MeasurementsToPrint(const Session &session, const QDate &date, const PerMeasurement<QString> &current) {
  const PreviousMeasurements previous = LoadPreviousMeasurements(session, date);
  const PerMeasurement<QString> differences =
      MeasurementDifferences(previous, current, session.settings.UomID, session.locale);
  PrintedList list;
  list.heading = PrintedHeading(session, QStringLiteral(": Body Measurements on ") + ShortDate(date, session.locale));
  list.columns = {{QStringLiteral("Measurement"), 2880},
                  {QStringLiteral("Size"), 1440, true},
                  {previous.heading, 2160, true},
                  {QStringLiteral("Change"), 1440, true}};
  list.rows = static_cast<int>(measurementFields.size());
  list.cell = [previous, differences, current, locale = session.locale](int row, int column) {
    if (column == 0) return QString::fromLatin1(measurementFields.at(row).name);
    if (column == 1) return current.at(row);
    return column == 2 ? Format(previous.values.at(row), QStringLiteral("General Number"), locale)
                       : differences.at(row);
  };
  return list;
}

}  // namespace trimlog
