#pragma once

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include "core/start/startup.h"
#include "support/paths.h"
#include "support/test_session.h"

namespace trimlog {

/// A registry that holds what a test puts in, on a system that a test chooses.
class TestSystem final : public OperatingSystem {
 public:
  WindowsVersion Version() const override { return version; }
  std::optional<QVariant> ReadKey(KeyRoot, const QString &key, const QString &valueName) const override {
    const auto found = values.find(key + u'|' + valueName);
    return found == values.end() ? std::nullopt : std::optional<QVariant>(*found);
  }
  WindowsVersion version;
  QMap<QString, QString> values;
};

/// The whole program without its windows: a program directory with the shipped data file, and doors and hooks that
/// remember in which order they were used.
class StartBench {
 public:
  StartBench() {
    QFile::copy(ShippedDir() + QStringLiteral("/tlg.dat"), DataPath());
    QFile::setPermissions(DataPath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther);
    doors.ScreenSize = [] { return QSize(19200, 15360); };
    doors.CloseSplash = Remember(QStringLiteral("splash closed"));
    doors.ShowFrame = [this] {
      calls.append(QStringLiteral("frame"));
      return frameLoads;
    };
    doors.MaximiseFrame = Remember(QStringLiteral("maximised"));
    doors.LetEventsRun = Remember(QStringLiteral("events"));
    doors.OpenSetup = Remember(QStringLiteral("setup"));
    doors.SaveOpenEdit = [this] {
      calls.append(QStringLiteral("edit saved"));
      return edit;
    };
    doors.DropOpenEdit = Remember(QStringLiteral("edit dropped"));
    doors.ReadWindowPlaces = [this] { session.windows.framePlace = {100, 200, 9600, 7200}; };
    hooks.LoadRewardSettings = Remember(QStringLiteral("rewards"));
    hooks.CheckDBVersionAndUpdate = [this] {
      calls.append(QStringLiteral("upgrade"));
      return oldVersion;
    };
    hooks.RunHandheldSync = [this](bool activeSyncAfter) {
      calls.append(QStringLiteral("handheld %1").arg(activeSyncAfter));
    };
    hooks.MakeDatabaseChangesSerava = Remember(QStringLiteral("serava"));
    hooks.CloseToolsWindow = Remember(QStringLiteral("tools closed"));
  }

  QString DataPath() const { return directory.filePath(QStringLiteral("tlg.dat")); }
  /// Changes the data file before the start.
  void Prepare(const QString &sql) { Database::Open(DataPath())->Execute(sql); }
  void Put(const QString &name, const QString &value) { store->SaveSettingString(settingsRoot, name, value); }
  QString Setting(const QString &name) const {
    return store->GetSettingString(settingsRoot, name, QStringLiteral("none"));
  }
  QString Log() const {
    QFile file(directory.filePath(QStringLiteral("errorlog.txt")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }

  QTemporaryDir directory;
  FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(12, 0))};
  RecordingMachine machine;
  QueuedBoxes boxes;
  RecordingPrinting printing;
  TestSystem system;
  std::unique_ptr<SettingsStore> store = MemorySettings();
  Session session{
      {directory.path(), *store, clock, machine, boxes, printing, QLocale(QLocale::English, QLocale::UnitedStates)}};
  RoomHooks hooks;
  FrameDoors doors;
  Application application{session, hooks, doors, system};

  QStringList calls;
  bool frameLoads = true;
  EditOutcome edit = EditOutcome::Saved;
  QString oldVersion = QStringLiteral("2.7");

 private:
  std::function<void()> Remember(const QString &call) {
    return [this, call] { calls.append(call); };
  }
};

}  // namespace trimlog
