#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <memory>

#include "core/data/nutrients.h"
#include "core/frame/statistics.h"
#include "core/session/data_changes.h"
#include "core/settings/reward_settings.h"
#include "core/settings/settings.h"
#include "platform/boxes.h"
#include "platform/grid/grid_clipboard.h"
#include "platform/machine/machine.h"
#include "platform/store/database.h"

namespace trimlog {

/// What the session borrows from outside: the program hands over the real ones, a test its own.
struct SessionPlaces {
  QString programDirectory;  ///< where tlg.dat, errorlog.txt and the shipped files stand; no trailing separator
  SettingsStore &store;
  Clock &clock;
  Machine &machine;
  Boxes &boxes;
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
  QLocale locale;
  DataChanges changes;

  /// The open data file. Throws when none is open.
  Database &Data() const;
  std::unique_ptr<Database> database;

  Settings settings;
  Statistics statistics;  ///< what UpdateStats last found
  Nutrients nutrients;
  RewardSettings rewards;  ///< of the current profile
  QString UomDisplay;      ///< "Lbs" or "Kg": uom.UomDisplay of settings.UomID

  QString CurrentPersonID = QStringLiteral("1");  ///< "-1", "-2" samples; "0" nobody
  QString LastRealPersonID;                       ///< survives into the next run; never a sample
  quint32 BackColor = 0xFFE0C0;                   ///< colour scheme of the profile, blue-green-red byte order
  int NutTargetID = 30;                           ///< the current target set; 0 for none
  bool ReloadInProgress = false;                  ///< set by backup, restore and import; never cleared
  bool AboutMode = false;
  bool DecimalComma = false;
  bool BizEd = false;
  bool BizEdLoginMode = false;
  bool SeravaEdition = false;
  bool HandheldSupport = false;
  bool QuickJournalOpen = false;
  bool SuppressReward = false;  ///< set when a navigation button is pressed, cleared when a weight cell gets the focus
  bool PasswordAccepted = true;

  GridClipboard rowClipboard;  ///< rows last copied from a grid

  QDate FirstWeightDate;  ///< invalid: the profile has no weights
  QDate LastWeightDate;
  QDate RememberedDate;  ///< the calendar's last active date; cleared by LoadData

  WindowPlace framePlace;
  int frameWindowState = 0;  ///< 0 normal, 2 maximised
  WindowPlace quickJournalPlace;

  bool IsSample() const;         ///< the current profile is one of "-1" to "-4"
  QString DataFilePath() const;  ///< programDirectory/tlg.dat
  QDate Today() const { return clock.Today(); }
};

/// "-1" to "-4": the numbers kept for sample profiles.
bool IsSampleProfile(const QString &personID);

}  // namespace trimlog
