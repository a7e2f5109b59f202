#include "app_windows/every_window.h"

#include "catalogs/windows/exercise_page.h"
#include "catalogs/windows/food_page.h"
#include "catalogs/windows/frmAddActivity.h"
#include "catalogs/windows/frmAddMeal.h"
#include "catalogs/windows/frmDailyValues.h"
#include "catalogs/windows/frmNutTargets.h"
#include "catalogs/windows/frmSelectedNutrients.h"
#include "catalogs/windows/frmSetupFoods.h"
#include "companions/windows/frmWizard.h"
#include "core/windows/controls/frmCalendar.h"
#include "core/windows/frame/frmMeter.h"
#include "core/windows/frame/frmSplash.h"
#include "core/windows/help/frmHelp.h"
#include "core/windows/profiles/add_profile_page.h"
#include "core/windows/profiles/frmAddRec.h"
#include "core/windows/profiles/frmEditPassword.h"
#include "core/windows/profiles/frmPassword.h"
#include "core/windows/setup/frmSetup.h"
#include "journal/windows/add_measurements_page.h"
#include "journal/windows/add_note_page.h"
#include "journal/windows/frmConfirmMealUpdates.h"
#include "journal/windows/frmDiary.h"
#include "journal/windows/frmQuickDiary.h"
#include "support/paths.h"
#include "tools/windows/frmMedicalDisclaimer.h"
#include "tools/windows/frmTools.h"
#include "weightlog/windows/frmData.h"
#include "weightlog/windows/frmReward.h"
#include "weightlog/windows/rewards_page.h"

namespace trimlog {
namespace {

using Opened = std::unique_ptr<QWidget>;

std::unique_ptr<QWidget> OpenFrame(House &house) {
  ContentForms forms;
  forms.insert("frmData", [&house](QWidget *parent) { return new frmData(*house.session, house.navigator, parent); });
  auto frame =
      std::make_unique<frmMDI>(FrameParts{*house.session, house.navigator, house.hooks, *house.system, forms, {}});
  frame->MDIForm_Load();
  return frame;
}

}  // namespace

const QList<Room> &EveryWindow() {
  static const QList<Room> rooms = {
      {"frmMDI", OpenFrame},
      {"frmSetup",
       [](House &house) -> Opened {
         return std::make_unique<frmSetup>(*house.session, house.navigator, QList<SetupPageMaker>{RewardsTab()},
                                           nullptr);
       }},
      {"frmPassword",
       [](House &house) -> Opened { return std::make_unique<frmPassword>(*house.session, "1", true, nullptr); }},
      {"frmEditPassword",
       [](House &house) -> Opened { return std::make_unique<frmEditPassword>(*house.session, "1", "Ann", nullptr); }},
      {"frmCalendar",
       [](House &house) -> Opened {
         return std::make_unique<frmCalendar>(*house.session, QDate(2026, 3, 1), nullptr);
       }},
      {"frmMeter", [](House &) -> Opened { return std::make_unique<frmMeter>("Title", "Caption", 5, nullptr); }},
      {"frmSplash",
       [](House &house) -> Opened {
         return std::make_unique<frmSplash>(*house.session, *house.system, true, nullptr);
       }},
      {"frmReward",
       [](House &house) -> Opened {
         return std::make_unique<frmReward>(
             *house.session, RewardNotice{"Daily Reward", "You have lost 2 pounds", "Well done", {}}, nullptr);
       }},
      {"frmTools, goal planner",
       [](House &house) -> Opened {
         return std::make_unique<frmTools>(*house.session, house.navigator, ToolsPanel::GoalPlanner);
       }},
      {"frmTools, caloric needs",
       [](House &house) -> Opened {
         return std::make_unique<frmTools>(*house.session, house.navigator, ToolsPanel::CaloricNeeds);
       }},
      {"frmTools, body fat",
       [](House &house) -> Opened {
         return std::make_unique<frmTools>(*house.session, house.navigator, ToolsPanel::BodyFat);
       }},
      {"frmMedicalDisclaimer",
       [](House &house) -> Opened { return std::make_unique<frmMedicalDisclaimer>(*house.session); }},
      {"frmSetupFoods",
       [](House &house) -> Opened {
         return std::make_unique<frmSetupFoods>(*house.session, house.navigator, nullptr);
       }},
      {"frmDiary, single date",
       [](House &house) -> Opened { return std::make_unique<frmDiary>(*house.session, house.navigator, house.doors); }},
      {"frmDiary, all dates",
       [](House &house) -> Opened {
         house.session->settings.LastDiaryView = static_cast<int>(JournalView::AllDates);
         return std::make_unique<frmDiary>(*house.session, house.navigator, house.doors);
       }},
      {"frmQuickDiary",
       [](House &house) -> Opened {
         return std::make_unique<frmQuickDiary>(*house.session, house.navigator, house.doors, nullptr);
       }},
      {"frmAddActivity",
       [](House &house) -> Opened {
         const EntryOpening opening{.kind = JournalKind::Diary(), .date = QDate(2026, 2, 1)};
         return std::make_unique<frmAddActivity>(*house.session, house.navigator, opening, nullptr);
       }},
      {"frmAddRec, exercise",
       [](House &house) -> Opened {
         auto dialog = std::make_unique<frmAddRec>(nullptr);
         dialog->SetPage(new ExercisePage(*house.session, dialog.get()));
         return dialog;
       }},
      {"frmSelectedNutrients",
       [](House &house) -> Opened {
         return std::make_unique<frmSelectedNutrients>(*house.session, house.navigator, nullptr);
       }},
      {"frmDailyValues",
       [](House &house) -> Opened { return std::make_unique<frmDailyValues>(*house.session, nullptr); }},
      {"frmAddRec, a profile",
       [](House &house) -> Opened {
         auto window = std::make_unique<frmAddRec>(nullptr);
         window->SetPage(new AddProfilePage(*house.session, nullptr));
         return window;
       }},
      {"frmAddRec, a food",
       [](House &house) -> Opened {
         auto window = std::make_unique<frmAddRec>(nullptr);
         window->SetPage(new FoodPage(*house.session, 1, nullptr));
         return window;
       }},
      {"frmHelp",
       [](House &) -> Opened {
         const QString pages = SourceDir() + "/help";
         auto window = std::make_unique<frmHelp>(pages, [](const QString &) {});
         window->Open(QUrl::fromLocalFile(pages + "/index.html"));
         return window;
       }},
      {"frmAddMeal",
       [](House &house) -> Opened {
         return std::make_unique<frmAddMeal>(*house.session, house.navigator,
                                             FoodPicking{.caption = "Add", .header = "Foods", .add = {}}, nullptr);
       }},
      {"frmNutTargets",
       [](House &house) -> std::unique_ptr<QWidget> {
         return std::make_unique<frmNutTargets>(*house.session, house.navigator, nullptr);
       }},
      {"frmAddRec, measurements",
       [](House &house) -> Opened {
         auto dialog = std::make_unique<frmAddRec>(nullptr);
         dialog->SetPage(new AddMeasurementsPage(*house.session, QDate(2026, 2, 1), false, dialog.get()));
         return dialog;
       }},
      {"frmAddRec, a note",
       [](House &house) -> Opened {
         auto dialog = std::make_unique<frmAddRec>(nullptr);
         dialog->SetPage(new AddNotePage(*house.session, QDate(2026, 2, 1), false, dialog.get()));
         return dialog;
       }},
      {"frmConfirmMealUpdates",
       [](House &house) -> Opened { return std::make_unique<frmConfirmMealUpdates>(*house.session, nullptr); }},
      {"frmWizard", [](House &house) -> Opened {
         auto wizard = std::make_unique<frmWizard>(*house.session, house.navigator, WizardMode::AddingProfile, nullptr);
         wizard->Form_Load();
         return wizard;
       }}};
  return rooms;
}

std::string NameOf(const testing::TestParamInfo<Room> &room) {
  return QString::fromLatin1(room.param.window).remove(QRegularExpression("[^A-Za-z]")).toStdString();
}

}  // namespace trimlog
