// What a screen reader finds in every window of the program, walked widget by widget.

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
#include "core/windows/frame/frmMDI.h"
#include "core/windows/frame/frmMeter.h"
#include "core/windows/frame/frmSplash.h"
#include "core/windows/help/frmHelp.h"
#include "core/windows/profiles/add_profile_page.h"
#include "core/windows/profiles/frmAddRec.h"
#include "core/windows/profiles/frmEditPassword.h"
#include "core/windows/profiles/frmPassword.h"
#include "core/windows/setup/frmSetup.h"
#include "journal/windows/frmDiary.h"
#include "journal/windows/frmQuickDiary.h"
#include "support/paths.h"
#include "support/test_session.h"
#include "support/windows/controls.h"
#include "tools/windows/frmMedicalDisclaimer.h"
#include "tools/windows/frmTools.h"
#include "weightlog/windows/frmData.h"
#include "weightlog/windows/frmReward.h"
#include "weightlog/windows/rewards_page.h"

namespace trimlog {
namespace {

/// A session on the shipped data, and the doors that windows open.
struct House {
  House() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
    session->settings.ShowSplash = false;
    session->settings.MedicalDisclaimer = true;  // it is a window of its own here
    session.Weigh(QDate(2026, 2, 1), 200);
    navigator.ShowHelp = [](const QString &) {};
  }
  TestSession session;
  Navigator navigator;
  JournalDoors doors;
  RoomHooks hooks;
  std::unique_ptr<OperatingSystem> system = RunningSystem();
};

using Opened = std::unique_ptr<QWidget>;

struct Room {
  const char *window;
  std::function<Opened(House &)> open;
};

std::unique_ptr<QWidget> OpenFrame(House &house) {
  ContentForms forms;
  forms.insert("frmData", [&house](QWidget *parent) { return new frmData(*house.session, house.navigator, parent); });
  auto frame =
      std::make_unique<frmMDI>(FrameParts{*house.session, house.navigator, house.hooks, *house.system, forms, {}});
  frame->MDIForm_Load();
  return frame;
}

const Room rooms[] = {
    {"frmMDI", OpenFrame},
    {"frmSetup",
     [](House &house) -> Opened {
       return std::make_unique<frmSetup>(*house.session, house.navigator, QList<SetupPageMaker>{RewardsTab()}, nullptr);
     }},
    {"frmPassword",
     [](House &house) -> Opened { return std::make_unique<frmPassword>(*house.session, "1", true, nullptr); }},
    {"frmEditPassword",
     [](House &house) -> Opened { return std::make_unique<frmEditPassword>(*house.session, "1", "Ann", nullptr); }},
    {"frmCalendar",
     [](House &house) -> Opened { return std::make_unique<frmCalendar>(*house.session, QDate(2026, 3, 1), nullptr); }},
    {"frmMeter", [](House &) -> Opened { return std::make_unique<frmMeter>("Title", "Caption", 5, nullptr); }},
    {"frmSplash",
     [](House &house) -> Opened { return std::make_unique<frmSplash>(*house.session, *house.system, true, nullptr); }},
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
     [](House &house) -> Opened { return std::make_unique<frmSetupFoods>(*house.session, house.navigator, nullptr); }},
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
    {"frmWizard", [](House &house) -> Opened {
       auto wizard = std::make_unique<frmWizard>(*house.session, house.navigator, WizardMode::AddingProfile, nullptr);
       wizard->Form_Load();
       return wizard;
     }}};

/// Qt's own parts of a control: the control speaks for them.
bool IsPartOfControl(const QWidget *widget) {
  if (widget->objectName().startsWith("qt_")) return true;
  const QWidget *parent = widget->parentWidget();
  for (const char *whole : {"QComboBox", "QAbstractSpinBox", "QHeaderView", "QCalendarWidget", "QMenuBar"}) {
    if (parent && parent->inherits(whole)) return true;
  }
  return widget->inherits("QComboBoxPrivateContainer") || (parent && parent->inherits("QComboBoxPrivateContainer")) ||
         widget->inherits("QHeaderView");
}

bool HasLabel(const QAccessibleInterface &control) {
  for (const auto &[label, relation] : control.relations(QAccessible::Label)) {
    if (relation.testFlag(QAccessible::Label) && !label->text(QAccessible::Name).isEmpty()) return true;
  }
  return false;
}

QStringList MuteTicks(const QAbstractItemView &view) {
  QStringList faults;
  const QAbstractItemModel *model = view.model();
  if (!model) return faults;
  for (int row = 0; row < std::min(3, model->rowCount()); ++row) {
    for (int column = 0; column < model->columnCount(); ++column) {
      const QModelIndex cell = model->index(row, column);
      if (!cell.data(Qt::CheckStateRole).isValid()) continue;
      if (cell.data(Qt::AccessibleTextRole).toString().isEmpty() && cell.data(Qt::DisplayRole).toString().isEmpty())
        faults.append(QStringLiteral("mute tick in column %1").arg(column));
    }
  }
  faults.removeDuplicates();
  return faults;
}

/// What is wrong with one widget; empty for nothing.
QStringList FaultsOf(QWidget *widget) {
  if (const auto *label = qobject_cast<QLabel *>(widget)) {
    const bool differs =
        !label->text().isEmpty() && !label->accessibleName().isEmpty() && label->accessibleName() != label->text();
    return differs ? QStringList("a label whose name is not its text") : QStringList();
  }
  const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
  if (!spoken) return {};
  if (qobject_cast<QComboBox *>(widget) && !HasLabel(*spoken)) return {"a choice without a label"};
  QStringList faults;
  const bool isControl = (widget->focusPolicy() & Qt::TabFocus) && !widget->inherits("QScrollArea") &&
                         !widget->inherits("QStackedWidget") && !widget->inherits("QTabWidget");
  if (isControl && spoken->text(QAccessible::Name).isEmpty() && !HasLabel(*spoken))
    faults.append("a control without a name");
  if (const auto *view = qobject_cast<QAbstractItemView *>(widget)) faults += MuteTicks(*view);
  return faults;
}

class AccessibleTree : public testing::TestWithParam<Room> {
 protected:
  AccessibleTree() { QAccessible::setActive(true); }
  ~AccessibleTree() override { QAccessible::setActive(false); }
};

TEST_P(AccessibleTree, NamesEveryControlAndHidesNoText) {
  House house;
  const std::unique_ptr<QWidget> window = GetParam().open(house);
  window->show();
  QApplication::processEvents();
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(window.get())->text(QAccessible::Name).isEmpty());
  int seen = 0;
  for (QWidget *widget : window->findChildren<QWidget *>()) {
    if (IsPartOfControl(widget)) continue;
    ++seen;
    for (const QString &fault : FaultsOf(widget)) {
      ADD_FAILURE() << widget->metaObject()->className() << " " << qPrintable(widget->objectName()) << ": "
                    << qPrintable(fault);
    }
  }
  EXPECT_GT(seen, 1);
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, AccessibleTree, testing::ValuesIn(rooms), [](const auto &room) {
  return QString::fromLatin1(room.param.window).remove(QRegularExpression("[^A-Za-z]")).toStdString();
});

}  // namespace
}  // namespace trimlog
