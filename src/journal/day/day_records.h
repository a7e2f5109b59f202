#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QVariantMap>
#include <map>
#include <optional>
#include <vector>

#include "core/data/tables.h"
#include "journal/day/day_source.h"
#include "journal/day/measurements.h"
#include "journal/servings_rule.h"

namespace trimlog {

class Session;

// What makes, changes and deletes the records of the session's profile that a day is made of. Each function is one
// transaction and announces what it did; each new record gets the next RecordID of its person and table. They throw
// what the store throws.

/// Something eaten or planned: a snapshot of its food.
struct MealEntry {
  QDate date;
  int MealTypeID = 1;
  int MealID = 0;
  QString Amount;  ///< the servings, as typed
  EntryValues values{};
};
int AddRecMeal(Session &session, EntryKind entries, const MealEntry &entry);

/// An exercise done or planned.
struct ActivityEntry {
  QDate date;
  int ActivityID = 0;
  QString Duration;  ///< minutes, as typed
  QString Pace;
  double Calories = 0;
  QString Amount;  ///< distance or weight
  std::optional<int> Sets;
  std::optional<int> Reps;
};
int AddActivity(Session &session, EntryKind entries, const ActivityEntry &entry);

int AddNote(Session &session, const QDate &date, const QString &text);
int AddMeasurements(Session &session, const QDate &date, const PerMeasurement<std::optional<double>> &values);

/// A day has at most one note and one set of measurements: the key of it.
std::optional<int> NoteOn(const Session &session, const QDate &date);
std::optional<int> MeasurementsOn(const Session &session, const QDate &date);

QString NoteText(const Session &session, int recordID);
void SaveNote(Session &session, int recordID, const QString &text);
/// The stored sizes; a blank one has no value.
PerMeasurement<std::optional<double>> ReadMeasurements(const Session &session, int recordID);
/// Changes some of them, by field.
void SaveMeasurements(Session &session, int recordID, const std::map<std::size_t, std::optional<double>> &values);

/// Deletes records of a day by key.
void DeleteDayRecords(Session &session, Table table, const std::vector<qint64> &recordIDs);

/// Adds rows that were copied from a list of the same kind; `date` replaces their own where it is valid. A meal keeps
/// the snapshot of its food. Returns the new keys, in order. All or nothing.
std::vector<qint64> PasteDayRecords(Session &session, Table table, EntryKind entries, const QList<QVariantMap> &rows,
                                    const QDate &date);

}  // namespace trimlog
