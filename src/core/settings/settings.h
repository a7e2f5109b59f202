#pragma once

#include <QList>
#include <QString>
#include <array>

#include "core/settings/unit_system.h"
#include "platform/machine/settings_store.h"

namespace trimlog {

/// The program-wide preferences, read once at start. Members are named as their values in the store. The one declared
/// table of names, types, defaults and allowed values stands in settings.cpp.
struct Settings {
  int UomID = poundsSystem;
  bool OpenToday = true;
  bool ShowLoss = false;
  bool ColorCoding = true;
  int LossFactor = 1;  ///< 1 shows a loss as positive, -1 as negative
  bool ShowCalories = true;
  int NutrientID = 102;  ///< 1 to 35, 101 calories burned, 102 net calories
  std::array<bool, 4> ShowGridlines{};
  std::array<bool, 4> ShowDataLabels{};
  std::array<bool, 4> PlotPoints{};
  std::array<int, 4> LineWidth{};
  std::array<int, 4> LineColor{};  ///< blue-green-red byte order
  std::array<int, 4> PointColor{};
  int BodyMeasDefault = 1;
  bool LinkDisclaimer = false;
  bool RecalcCalories = true;
  bool ShowSplash = true;
  bool ConfirmDeletes = true;
  int ConfirmMealsUpdates = 2;
  int ConfirmExerciseUpdates = 2;
  bool SmartDates = true;
  bool BodyFat = true;
  bool NetCaloriesBMR = true;
  QString PersonID = QStringLiteral("1");
  int NotesLines = 3;
  int DefaultDiaryTab = 1;
  int LastDiaryView = 2;
  int LastPlannerView = 2;
  bool ShowTutorial = true;
  QString UserName;
  bool MedicalDisclaimer = false;
  bool FastFoodDisclaimer = false;
  int LastRecordTypeMeals = -1;
};

/// A window's place in twips (1,440 to the inch).
struct WindowPlace {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

/// Reads every value in the table's order. A missing or invalid value takes its default and is written back when
/// `writeDefaults`; otherwise the member keeps what it had.
void LoadControlValues(Settings &settings, SettingsStore &store, bool writeDefaults);
/// Writes the values that the options window edits, in the fixed order.
void SaveControlValues(const Settings &settings, SettingsStore &store);
/// Writes one value of the table at once, by the member's name, e.g. SaveSetting(settings, store, "ShowLoss"). Throws
/// unknownColumn for a name that the table does not have.
void SaveSetting(const Settings &settings, SettingsStore &store, const QString &valueName);

/// One row of the table, as tests and listings see it.
struct SettingRow {
  QString name;
  QString fallback;  ///< the default, as stored
};
/// The declared table, in its order.
QList<SettingRow> SettingRows();
/// A member's value in its stored form: "-1" and "0" for booleans, plain decimals for numbers.
QString StoredValue(const Settings &settings, const QString &valueName);

}  // namespace trimlog
