#pragma once

#include <memory>

#include "core/session/navigator.h"
#include "core/session/room_hooks.h"
#include "core/start/startup.h"
#include "core/windows/frame/frmMDI.h"
#include "core/windows/help/help_desk.h"
#include "journal/day/journal_doors.h"
#include "platform/machine/end_signals.h"
#include "platform/machine/single_instance.h"

namespace trimlog {

/// The running program: joins the rooms, whose windows do not know each other, and holds the main window.
class Program {
 public:
  Program(Session &session, const OperatingSystem &system);
  /// Starts up; false when the process is over already.
  bool Start();

 private:
  void FillHooks();
  void FillNavigator();
  void FillDoors();
  ContentForms Forms();
  bool ShowFrame();
  bool Close();
  void ComeForward();
  void EndForMachine();

  Session &session_;
  const OperatingSystem &system_;
  SingleInstance instance_;
  EndSignals endSignals_;
  HelpDesk help_;
  Navigator navigator_;
  JournalDoors journalDoors_;
  RoomHooks hooks_;
  FrameDoors doors_;
  Application application_;
  std::unique_ptr<frmMDI> frame_;
  EndedBy endedBy_ = EndedBy::Person;
  bool ended_ = false;
};

}  // namespace trimlog
