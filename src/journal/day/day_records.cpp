#include "journal/day/day_records.h"

#include "core/data/data_access.h"
#include "core/session/change.h"
#include "platform/store/recordset.h"

namespace trimlog {

namespace {

DayScope AllOfProfile(const Session &session) {
  return {session.profile.CurrentPersonID.toInt(), JournalView::AllDates, {}};
}

GridSource RowsOf(const Session &session, Table table, EntryKind entries = EntryKind::Eaten) {
  const DayScope scope = AllOfProfile(session);
  switch (table) {
    case Table::Meals:
      return MealsSource(scope, entries);
    case Table::Activities:
      return ActivitiesSource(scope, entries);
    case Table::Notes:
      return NotesSource(scope);
    case Table::Measurements:
      return MeasurementsSource(scope);
    default:
      throw Error(error_number::unknownTable, QStringLiteral("No day holds rows of %1.").arg(TableName(table)));
  }
}

/// Numbers and texts of a row that an unset optional leaves out.
template <typename T>
Value ValueOf(const std::optional<T> &value) {
  return value ? Value(*value) : Value();
}

/// Writes a record within a change of the caller's; returns its key.
int WriteRecord(Session &session, Table table, EntryKind entries, QVariantMap values) {
  const int recordID = GetNextID(session.Data(), TableName(table), session.profile.CurrentPersonID).toInt();
  values[QStringLiteral("RecordID")] = recordID;
  const GridStatement insert = InsertStatement(RowsOf(session, table, entries), values);
  session.Data().Execute(insert.sql, insert.params);
  return recordID;
}

int InsertRecord(Session &session, Table table, EntryKind entries, const QVariantMap &values) {
  Change change(session);
  const int recordID = WriteRecord(session, table, entries, values);
  change.Announce({.table = table,
                   .keys = {recordID},
                   .personID = session.profile.CurrentPersonID,
                   .date = values.value(QStringLiteral("ThisDate")).toDate()});
  change.Commit();
  return recordID;
}

std::optional<int> RecordOn(const Session &session, Table table, const QDate &date) {
  const Recordset row =
      session.Data().OpenRecordset(QStringLiteral("SELECT RecordID FROM %1 WHERE PersonID = ? AND ThisDate = ? "
                                                  "ORDER BY RecordID;")
                                       .arg(TableName(table)),
                                   {session.profile.CurrentPersonID.toInt(), date}, RecordsetKind::Forward);
  if (row.Eof()) return std::nullopt;
  return row.Integer(QStringLiteral("RecordID"));
}

void SaveFields(Session &session, Table table, int recordID, const QVariantMap &values) {
  Change change(session);
  const GridStatement update = UpdateStatement(RowsOf(session, table), recordID, values);
  session.Data().Execute(update.sql, update.params);
  change.Announce({.table = table, .keys = {recordID}, .personID = session.profile.CurrentPersonID});
  change.Commit();
}

Recordset ReadRecord(const Session &session, Table table, const QStringList &fields, int recordID) {
  const GridStatement rows = RowsStatement(RowsOf(session, table), fields, {recordID});
  return session.Data().OpenRecordset(rows.sql, rows.params, RecordsetKind::Forward);
}

}  // namespace

int AddRecMeal(Session &session, EntryKind entries, const MealEntry &entry) {
  QVariantMap values = {{QStringLiteral("ThisDate"), entry.date},
                        {QStringLiteral("MealTypeID"), entry.MealTypeID},
                        {QStringLiteral("MealID"), entry.MealID},
                        {QStringLiteral("Amount"), entry.Amount}};
  for (std::size_t i = 0; i < nutrientCount; ++i) {
    values[session.nutrients.NutrientDefs[i].fieldName] = entry.values[i];
  }
  return InsertRecord(session, Table::Meals, entries, values);
}

int AddActivity(Session &session, EntryKind entries, const ActivityEntry &entry) {
  return InsertRecord(session, Table::Activities, entries,
                      {{QStringLiteral("ThisDate"), entry.date},
                       {QStringLiteral("ActivityID"), entry.ActivityID},
                       {QStringLiteral("Duration"), entry.Duration},
                       {QStringLiteral("Pace"), entry.Pace},
                       {QStringLiteral("Calories"), entry.Calories},
                       {QStringLiteral("Amount"), entry.Amount},
                       {QStringLiteral("Sets"), ValueOf(entry.Sets)},
                       {QStringLiteral("Reps"), ValueOf(entry.Reps)}});
}

int AddNote(Session &session, const QDate &date, const QString &text) {
  return InsertRecord(session, Table::Notes, EntryKind::Eaten,
                      {{QStringLiteral("ThisDate"), date}, {QStringLiteral("Notes"), text}});
}

int AddMeasurements(Session &session, const QDate &date, const PerMeasurement<std::optional<double>> &values) {
  QVariantMap fields = {{QStringLiteral("ThisDate"), date}};
  for (std::size_t i = 0; i < measurementFields.size(); ++i) {
    fields[QLatin1StringView(measurementFields[i].column)] = ValueOf(values[i]);
  }
  return InsertRecord(session, Table::Measurements, EntryKind::Eaten, fields);
}

std::optional<int> NoteOn(const Session &session, const QDate &date) { return RecordOn(session, Table::Notes, date); }

std::optional<int> MeasurementsOn(const Session &session, const QDate &date) {
  return RecordOn(session, Table::Measurements, date);
}

QString NoteText(const Session &session, int recordID) {
  return ReadRecord(session, Table::Notes, {QStringLiteral("Notes")}, recordID).Text(QStringLiteral("Notes"));
}

void SaveNote(Session &session, int recordID, const QString &text) {
  SaveFields(session, Table::Notes, recordID, {{QStringLiteral("Notes"), text}});
}

PerMeasurement<std::optional<double>> ReadMeasurements(const Session &session, int recordID) {
  const Recordset row = ReadRecord(session, Table::Measurements, {}, recordID);
  PerMeasurement<std::optional<double>> values;
  for (std::size_t i = 0; i < measurementFields.size(); ++i) {
    const Value value = row.Field(QLatin1StringView(measurementFields[i].column));
    if (value.isValid()) values[i] = value.toDouble();
  }
  return values;
}

void SaveMeasurements(Session &session, int recordID, const std::map<std::size_t, std::optional<double>> &values) {
  QVariantMap fields;
  for (const auto &[field, value] : values) {
    fields[QLatin1StringView(measurementFields.at(field).column)] = ValueOf(value);
  }
  SaveFields(session, Table::Measurements, recordID, fields);
}

void DeleteDayRecords(Session &session, Table table, const std::vector<qint64> &recordIDs) {
  Change change(session);
  GridSource rows = RowsOf(session, table);
  // A key is one record's, eaten or planned.
  rows.scope = {rows.scope.first()};
  const GridStatement statement = DeleteStatement(rows, recordIDs);
  session.Data().Execute(statement.sql, statement.params);
  change.Announce({.table = table, .keys = recordIDs, .personID = session.profile.CurrentPersonID});
  change.Commit();
}

std::vector<qint64> PasteDayRecords(Session &session, Table table, EntryKind entries, const QList<QVariantMap> &rows,
                                    const QDate &date) {
  Change change(session);
  std::vector<qint64> keys;
  for (QVariantMap row : rows) {
    row.remove(QStringLiteral("PersonID"));
    row.remove(QStringLiteral("IsPlanned"));
    if (date.isValid()) row[QStringLiteral("ThisDate")] = date;
    keys.push_back(WriteRecord(session, table, entries, row));
  }
  change.Announce({.table = table, .keys = keys, .personID = session.profile.CurrentPersonID, .date = date});
  change.Commit();
  return keys;
}

}  // namespace trimlog
