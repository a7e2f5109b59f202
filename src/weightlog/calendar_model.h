#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "weightlog/calendar_month.h"
#include "weightlog/rewards.h"

namespace trimlog {

class Session;

/// The Data Calendar without its window: what the 42 cells show, and the road of a typed weight from the cell to the
/// data file. Cells count from 1. Failures show their boxes and are logged; what is shown then stays as it was.
class CalendarModel {
 public:
  explicit CalendarModel(Session &session);

  const CalendarMonth &Month() const { return month_; }
  /// True until the profile has its first weight: there is nothing to add up yet.
  bool IsNewcomer() const;

  /// What opening the calendar does: statistics, the month to begin with, and its active cell.
  void Load();

  /// The month to open on: that of the remembered date or of the last weight, today's for a profile without weights.
  QDate GetFirstDay() const;
  /// Shows the month of a date: its days, weights and nutrient figures. False when the weights could not be read.
  bool BuildMonth(const QDate &anyDay);
  /// Reads the weights of the days shown.
  bool FindRecords();
  /// Fills the figures of the setting NutrientID, of one day or of all that are shown; nothing while calories are
  /// hidden. Of a day that is not shown nothing is read.
  void FillCalendarNutrients(const QDate &day = {});
  /// Brings everything in line with settings and data that may have changed. The active cell stays.
  void Refresh();

  void SetActiveDate(int i);
  void GotoNextDate();
  /// Makes a date's cell the active one, in its month.
  void GotoCalendarDate(const QDate &date);
  /// The month before or behind, on the same day of the month or its last one.
  void GotoPreviousMonth() { GotoMonth(-1); }
  void GotoNextMonth() { GotoMonth(1); }
  void GotoToday();

  void SetShowLoss(bool show);
  void SetShowCalories(bool show);
  void SetNutrientID(int NutrientID);

  /// A cell gets the focus. True when its whole text is to be selected, because another cell was active before.
  bool EnterCell(int i);
  /// The text that the active cell had when it got the focus.
  const QString &EntryText() const { return entryText_; }
  /// May the active cell be left with this text? A refusal has shown its box.
  bool ValidateWeight(const QString &text);
  /// The active cell is left with a valid text: when it changed, its row, the neighbour's loss, the totals, the
  /// statistics and the reward follow, in one transaction. False when it could not be saved; the text then stays to be
  /// tried again.
  bool SaveWeight(const QString &text);
  /// The congratulation that the last saved weight earned, once.
  std::optional<RewardNotice> TakeReward();

 private:
  void GotoMonth(int months);
  void ShowMonthOf(const QDate &date);
  void UpdateLoss(const std::optional<double> &weight);
  void ShowNextLoss(double loss);
  bool WriteWeight(const std::optional<double> &weight);

  Session &session_;
  CalendarMonth month_;
  QString entryText_;
  QDate enteredDate_;
  std::optional<RewardNotice> reward_;
};

}  // namespace trimlog
