#pragma once

#include <QLocale>
#include <QString>
#include <memory>

#include "core/data/nutrients.h"
#include "core/session/current_profile.h"
#include "core/session/data_changes.h"
#include "core/session/edition_flags.h"
#include "core/session/window_state.h"
#include "core/settings/settings.h"
#include "platform/boxes.h"
#include "platform/machine/machine.h"
#include "platform/printing/printing.h"
#include "platform/store/database.h"

namespace trimlog {

/// What the session borrows from outside: the program hands over the real ones, a test its own.
struct SessionPlaces {
  QString programDirectory;  ///< where tlg.dat, errorlog.txt and the shipped files stand; no trailing separator
  SettingsStore &store;
  Clock &clock;
  Machine &machine;
  Boxes &boxes;
  Printing &printing;
  QLocale locale;  ///< number and date forms that the person reads and types
};

/// The state that the whole program shares, made once by main() and handed to whoever needs it. Owns the one connection
/// to the data file.
class Session {
 public:
  explicit Session(const SessionPlaces &places);
  ~Session();
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;

  const QString programDirectory;
  SettingsStore &store;
  Clock &clock;
  Machine &machine;
  Boxes &boxes;
  Printing &printing;  ///< through Print (core/session/print.h)
  QLocale locale;
  DataChanges changes;

  /// The open data file. Throws when none is open.
  Database &Data() const;
  std::unique_ptr<Database> database;

  Settings settings;
  Nutrients nutrients;
  QString UomDisplay;  ///< "Lbs" or "Kg": uom.UomDisplay of settings.UomID
  CurrentProfile profile;
  EditionFlags edition;
  WindowState windows;

  bool ReloadInProgress = false;  ///< set by backup, restore and import; never cleared
  bool DecimalComma = false;

  QString DataFilePath() const;  ///< programDirectory/tlg.dat
  QDate Today() const { return clock.Today(); }
};

}  // namespace trimlog
