#pragma once

#include <memory>

#include "core/navigator.h"
#include "core/room_hooks.h"
#include "core/startup.h"
#include "core/windows/frmMDI.h"
#include "platform/single_instance.h"

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

  Session &session_;
  const OperatingSystem &system_;
  SingleInstance instance_;
  Navigator navigator_;
  RoomHooks hooks_;
  FrameDoors doors_;
  Application application_;
  std::unique_ptr<frmMDI> frame_;
  bool ended_ = false;
};

}  // namespace trimlog
