#pragma once

#include "core/bare_session.h"
#include "core/start/startup.h"
#include "support/paths.h"

namespace trimlog {

/// The whole program without its windows: a program directory with the shipped data file, and doors and hooks that
/// remember in which order they were used.
class StartBench : public BareSession {
 public:
  StartBench() {
    QFile::copy(ShippedDir() + "/tlg.dat", DataPath());
    QFile::setPermissions(DataPath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther);
    doors.ScreenSize = [] { return QSize(19200, 15360); };
    doors.CloseSplash = Remember("splash closed");
    doors.ShowFrame = [this] {
      calls.append("frame");
      return frameLoads;
    };
    doors.MaximiseFrame = Remember("maximised");
    doors.LetEventsRun = Remember("events");
    doors.OpenSetup = Remember("setup");
    doors.SaveOpenEdit = [this] {
      calls.append("edit saved");
      return edit;
    };
    doors.DropOpenEdit = Remember("edit dropped");
    doors.ReadWindowPlaces = [this] { session.windows.framePlace = {100, 200, 9600, 7200}; };
    hooks.LoadRewardSettings = Remember("rewards");
    hooks.CheckDBVersionAndUpdate = [this] {
      calls.append("upgrade");
      return oldVersion;
    };
    hooks.RunHandheldSync = [this](bool activeSyncAfter) {
      calls.append(QStringLiteral("handheld %1").arg(activeSyncAfter));
    };
    hooks.MakeDatabaseChangesSerava = Remember("serava");
    hooks.CloseToolsWindow = Remember("tools closed");
  }

  QString DataPath() const { return directory.filePath("tlg.dat"); }
  /// Changes the data file before the start.
  void Prepare(const QString &sql) { Database::Open(DataPath())->Execute(sql); }
  TestSystem system;
  RoomHooks hooks;
  FrameDoors doors;
  Application application{session, hooks, doors, system};

  QStringList calls;
  bool frameLoads = true;
  EditOutcome edit = EditOutcome::Saved;
  QString oldVersion = "2.7";

 private:
  std::function<void()> Remember(const QString &call) {
    return [this, call] { calls.append(call); };
  }
};

}  // namespace trimlog
