#pragma once

#include <functional>
#include <memory>

#include "core/windows/frame/frmMDI.h"
#include "journal/day/journal_doors.h"
#include "support/test_session.h"

namespace trimlog {

/// A session on the shipped data, and the doors that windows open.
struct House {
  House() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    session->settings.ShowSplash = false;
    session->settings.MedicalDisclaimer = true;  // it is a window of its own here
    session.Weigh(QDate(2026, 2, 1), 200);
    session.Data().Execute("UPDATE people SET PersonName='<b>Ann</b>';");  // shown as it was typed
    navigator.ShowHelp = [](const QString &) {};
  }
  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  RoomHooks hooks;
  std::unique_ptr<OperatingSystem> system = RunningSystem();
};

struct Room {
  const char *window;
  std::function<std::unique_ptr<QWidget>(House &)> open;
};

/// Every window of the program, in each of its forms.
const QList<Room> &EveryWindow();

/// The test's name of a window.
std::string NameOf(const testing::TestParamInfo<Room> &room);

}  // namespace trimlog
