#pragma once

#include <QDate>
#include <QString>

#include "core/settings/settings.h"
#include "journal/day_totals.h"

namespace trimlog {

/// One day alone, or all days of the profile. The numbers are those of the stored choice.
enum class JournalView { AllDates = 1, SingleDate = 2 };

/// What differs among the three windows over the days of a profile: journal, planner and quick journal. The pages that
/// they share ask this value; nothing asks for a window by its name.
struct JournalKind {
  EntryKind entries = EntryKind::Eaten;  ///< which entries are shown, made and totalled
  /// Which view was looked at last; none where there is only the single date.
  int Settings::*viewSetting = nullptr;
  QString viewSettingName;
  bool hasTargets = true;  ///< holds the day against the target set
  bool hasNetCalories = false;
  bool hasDayRecords = true;      ///< notes, measurements and water: of days that were lived, never planned
  bool hasPreviousValues = true;  ///< the last measurements beside the day's
  bool hasFixedDate = false;      ///< stands on the calendar's day; its dialogs do not let the date be changed
  bool isSmall = false;           ///< floats: its pages make do with little room
  bool scalesByWeight = true;     ///< burned calories follow the day's weight; planned ones do once they are done

  // Captions of the tabs.
  QString mealsTab;
  QString activitiesTab;
  QString addMealCaption;
  QString addMealHeader;
  QString addActivityCaption;
  QString noDataToPrint;
  // Titles of printed lists, which stand behind the profile's name; %1 is the date.
  QString mealsOnDate;
  QString mealsAllDates;
  QString activitiesOnDate;
  QString activitiesAllDates;
  QString printedTotals;  ///< before the totals of a printed list; %1 is the date

  static const JournalKind &Diary();
  static const JournalKind &Planner();
  static const JournalKind &Quick();
};

}  // namespace trimlog
