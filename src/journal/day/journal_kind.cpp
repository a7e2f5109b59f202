#include "journal/day/journal_kind.h"

namespace trimlog {

namespace {

QString AddHeader(const QString &target) {
  return QStringLiteral(
             "You can add multiple food entries to your %1 without closing this window.  Simply click the button that "
             "appears next to your selected item (or double-click the item) to add it to your %1.")
      .arg(target);
}

QString NothingToPrint(const QString &data) {
  return QStringLiteral(
             "There is currently no %1 data to print.  To print your %1 data, make sure you have a valid date selected "
             "or use the View All Dates option.")
      .arg(data);
}

JournalKind MakeDiary() {
  JournalKind kind;
  kind.viewSetting = &Settings::LastDiaryView;
  kind.viewSettingName = QStringLiteral("LastDiaryView");
  kind.hasNetCalories = true;
  kind.mealsTab = QStringLiteral(" Meals/Snacks ");
  kind.activitiesTab = QStringLiteral(" Exercises/Workouts ");
  kind.addMealCaption = QStringLiteral("Add a Food or Meal to Your Journal");
  kind.addMealHeader = AddHeader(QStringLiteral("Journal"));
  kind.addActivityCaption = QStringLiteral("Add an Exercise or Workout to Your Journal");
  kind.noDataToPrint = NothingToPrint(QStringLiteral("journal"));
  kind.mealsOnDate = QStringLiteral(": Meals Eaten on %1");
  kind.mealsAllDates = QStringLiteral(": Meals Eaten for All Dates");
  kind.activitiesOnDate = QStringLiteral(": Exercises Completed on %1");
  kind.activitiesAllDates = QStringLiteral(": Exercises Completed for All Dates");
  kind.printedTotals = QStringLiteral("Daily Totals (%1):");
  return kind;
}

JournalKind MakePlanner() {
  JournalKind kind;
  kind.entries = EntryKind::Planned;
  kind.viewSetting = &Settings::LastPlannerView;
  kind.viewSettingName = QStringLiteral("LastPlannerView");
  kind.hasDayRecords = false;
  kind.hasPreviousValues = false;
  kind.mealsTab = QStringLiteral(" Planned Meals ");
  kind.activitiesTab = QStringLiteral(" Planned Exercises ");
  kind.scalesByWeight = false;
  kind.addMealCaption = QStringLiteral("Add a Food or Meal to Your Planner");
  kind.addMealHeader = AddHeader(QStringLiteral("Planner"));
  kind.addActivityCaption = QStringLiteral("Add an Exercise or Workout to Your Planner");
  kind.noDataToPrint = NothingToPrint(QStringLiteral("planner"));
  kind.mealsOnDate = QStringLiteral(": Planned Meals for %1");
  kind.mealsAllDates = QStringLiteral(": Planned Meals for All Dates");
  kind.activitiesOnDate = QStringLiteral(": Planned Exercises for %1");
  kind.activitiesAllDates = QStringLiteral(": Planned Exercises for All Dates");
  kind.printedTotals = QStringLiteral("Totals for %1:");
  return kind;
}

JournalKind MakeQuick() {
  JournalKind kind = MakeDiary();
  kind.viewSetting = nullptr;
  kind.hasTargets = false;
  kind.hasNetCalories = false;
  kind.hasPreviousValues = false;
  kind.hasFixedDate = true;
  kind.isSmall = true;
  return kind;
}

}  // namespace

const JournalKind &JournalKind::Diary() {
  static const JournalKind kind = MakeDiary();
  return kind;
}

const JournalKind &JournalKind::Planner() {
  static const JournalKind kind = MakePlanner();
  return kind;
}

const JournalKind &JournalKind::Quick() {
  static const JournalKind kind = MakeQuick();
  return kind;
}

}  // namespace trimlog
