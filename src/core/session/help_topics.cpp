#include "core/session/help_topics.h"

namespace trimlog {

namespace {

struct TopicOfClass {
  const char *className;
  const char *topic;
};
constexpr TopicOfClass topics[] = {
    {"frmMDI", "index"},
    {"frmData", "calendar"},
    {"frmReward", "options#rewards"},

    {"frmDiary", "journal"},
    {"frmQuickDiary", "journal#quick"},
    {"NotesPage", "journal#notes"},
    {"MealsPage", "journal#meals"},
    {"ExercisesPage", "journal#exercises"},
    {"MeasurementsPage", "journal#measurements"},

    {"frmTools", "tools"},
    {"PlannerPage", "35"},
    {"CaloricNeedsPage", "63"},
    {"BodyFatPage", "65"},
    {"frmMedicalDisclaimer", "tools"},

    {"frmSetupFoods", "foods"},
    {"frmSelectedNutrients", "nutrients"},
    {"frmDailyValues", "foods#daily-values"},
    {"frmConfirmMealUpdates", "options#journal"},
    {"FoodPage", "foods#new-food"},
    {"frmAddActivity", "add_exercise"},
    {"ExercisePage", "add_exercise#new"},
    {"frmAddMeal", "add_food"},
    {"frmNutTargets", "targets"},
    {"TargetPage", "targets#new-set"},

    {"frmSetup", "options"},
    {"SetupProfilesPage", "options#profiles"},
    {"SetupCalendarPage", "options#calendar"},
    {"SetupChartsPage", "options#charts"},
    {"RewardsPage", "options#rewards"},
    {"SetupColoursPage", "options#colors"},
    {"SetupJournalPage", "options#journal"},
    {"SetupOtherPage", "options#other"},

    {"frmWizard", "wizard"},
    {"frmAddRec", "profiles"},
    {"frmPassword", "profiles#passwords"},
    {"frmEditPassword", "profiles#passwords"},

    {"frmCalendar", "keyboard#dates"},
    {"frmSplash", "index"},
    {"frmMeter", "index"},
    {"frmPrintGrids", "index"},
    {"frmHelp", "index"},
};

}  // namespace

QString HelpTopicOf(QStringView className) {
  for (const TopicOfClass &row : topics) {
    if (className == QLatin1String(row.className)) return QString::fromLatin1(row.topic);
  }
  return {};
}

}  // namespace trimlog
