#pragma once

#include <QTemporaryDir>
#include <memory>

#include "core/session/session.h"
#include "support/queued_boxes.h"
#include "support/recording_printing.h"

namespace trimlog {

class FixedClock final : public Clock {
 public:
  explicit FixedClock(const QDateTime &start) : now(start) {}
  QDateTime Now() const override { return now; }
  QDateTime now;
};

/// A machine that only remembers what was asked of it.
class RecordingMachine final : public Machine {
 public:
  bool OpenInBrowser(const QString &url) override {
    opened.append(url);
    return browserWorks;
  }
  bool Start(const QString &program, const QStringList &arguments) override {
    started.append(program + QLatin1Char(' ') + arguments.join(QLatin1Char(' ')));
    return true;
  }
  void PlaySound(const QString &path) override { played.append(path); }
  double GetNumColors() const override { return colors; }
  QString AccountName() const override { return accountName; }
  bool HasWindowTitled(const QString &title) const override { return windows.contains(title); }

  QStringList opened;
  QStringList started;
  QStringList played;
  QStringList windows;
  double colors = 16777216;
  bool browserWorks = true;
  QString accountName = "Test Person";
};

/// Settings kept in memory.
std::unique_ptr<SettingsStore> MemorySettings();

/// A session on a program directory of its own, with the shipped tlg.dat copied in and opened, profile 1 "Test Person"
/// made, the settings at their defaults, the nutrients' definitions read. It is the 1st of March 2026, 12:00, and the
/// locale is US English unless told otherwise.
class TestSession {
 public:
  explicit TestSession(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedStates));
  Session *operator->() { return session.get(); }
  Session &operator*() { return *session; }
  Database &Data() { return session->Data(); }
  /// Adds a profile by key and name with a goal, e.g. AddProfile(1, "Ann", "150").
  void AddProfile(int personID, const QString &name, const QString &goal = "150");
  /// Tells what a writer elsewhere would have told.
  void Announce(const DataChange &change);
  /// One value of the data file as text.
  QString ValueOf(const QString &field, const QString &table, const QString &where = {});

  /// All that a query finds, the values of a row joined by "|", the rows by "; ".
  QString Rows(const QString &query, const Params &params = {});
  /// A weight of a person, written past the weight log: nothing is computed and nothing announced.
  void Weigh(const QDate &date, double weight, int personID = 1);

  /// The error log, line by line.
  QStringList LogLines() const;
  /// Whether a line of the error log holds this.
  bool Logged(const QString &text) const { return LogLines().join(u'\n').contains(text); }

  QTemporaryDir directory;
  FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(12, 0))};
  RecordingMachine machine;
  QueuedBoxes boxes;
  RecordingPrinting printing;
  std::unique_ptr<SettingsStore> store = MemorySettings();
  std::unique_ptr<Session> session;
};

}  // namespace trimlog
