#include "core/windows/frame/frame_commands.h"

#include "core/profiles/profiles.h"
#include "core/profiles/sample_profiles.h"
#include "core/session/calculator.h"
#include "core/session/product.h"
#include "core/session/system_services.h"
#include "core/windows/controls/grid_menu.h"
#include "core/windows/frame/edit_commands.h"
#include "core/windows/frame/frmMDI.h"
#include "core/windows/frame/frmSplash.h"
#include "core/windows/frame/print_window.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

void ShowAbout(Session &session, frmMDI &frame) { frmSplash(session, frame.System(), true, &frame).exec(); }

const QString notHere = QStringLiteral("The window that is shown has nothing of this kind.");
const QString noList = QStringLiteral("Click on a row of a list first.");
const QString noField = QStringLiteral("Click into a field or cell that can be changed first.");
const QString noText = QStringLiteral("Click into a field or cell first.");
const QString noCalculator = QStringLiteral("No calculator is installed on this computer.");

using Reason = std::function<QString()>;

/// A door that leads somewhere makes what opens it available.
template <typename Door>
Reason Leads(const Door &door, const QString &otherwise = leadsNowhere) {
  return [&door, otherwise] { return door ? QString() : otherwise; };
}

Reason Unless(const std::function<bool()> &possible, const QString &otherwise) {
  return [possible, otherwise] { return possible() ? QString() : otherwise; };
}

}  // namespace

FailureExit CommandFailure(const QString &menu) {
  return {QStringLiteral("frmMDI"), menu + QStringLiteral("_Click"), QString(),
          QStringLiteral("An error occurred while carrying out this command.")};
}

std::vector<FrameCommand> FrameCommands(frmMDI &frame, Session &session, const Navigator &navigator,
                                        const RoomHooks &hooks) {
  const auto form = [&frame](const char *menu, const char *button, const QString &name) {
    return FrameCommand{menu, button, Unless([&frame, name] { return frame.HasForm(name); }, leadsNowhere),
                        [&frame, name] { frame.ShowForm(name); }};
  };
  const auto edit = [&frame](const char *menu, EditCommand command) {
    const auto possible = [&frame, command] { return CanRunEditCommand(command, frame.ActiveControl()); };
    return FrameCommand{menu, "", Unless(possible, command == EditCommand::Copy ? noText : noField),
                        [&frame, command] { RunEditCommand(command, frame.ActiveControl()); }};
  };
  const auto content = [&frame](const char *menu) {
    const QString name = QString::fromLatin1(menu);
    return FrameCommand{menu, "", Unless([&frame, name] { return frame.FormCommands().contains(name); }, notHere),
                        [&frame, name] {
                          if (const auto work = frame.FormCommands().value(name)) work();
                        }};
  };
  const auto rows = [&frame](const char *menu, const std::function<void(BoundGrid &)> &command) {
    return FrameCommand{menu, "", Unless([&frame] { return GridOf(frame.ActiveControl()) != nullptr; }, noList),
                        [&frame, command] {
                          if (BoundGrid *grid = GridOf(frame.ActiveControl())) command(*grid);
                        }};
  };
  // Before another window reads the data, what is being typed must be in it.
  const auto saved = [&frame](const std::function<void()> &work) {
    return [&frame, work] {
      if (frame.SaveOpenEdit()) work();
    };
  };
  const auto tool = [&](const char *menu, const char *button, ToolsPanel panel) {
    return FrameCommand{menu, button, Leads(navigator.OpenTools),
                        saved([&navigator, panel] { navigator.OpenTools(panel); })};
  };
  const auto catalog = [&](const char *menu, const std::function<void(QWidget *)> &door) {
    return FrameCommand{menu, "", Leads(door), saved([&frame, &door] { door(&frame); })};
  };
  const auto page = [&session](const char *menu, const QString &address) {
    return FrameCommand{menu, "", {}, [&session, address] { GotoWebAddress(session, address); }};
  };
  const auto help = [&navigator](const char *menu, const QString &topic) {
    return FrameCommand{menu, "", Leads(navigator.ShowHelp), [&navigator, topic] { navigator.ShowHelp(topic); }};
  };

  return {
      content("mnuFilePrint"),
      {"mnuFilePrintWindow", "", {}, saved([&] {
         if (frame.CurrentForm()) PrintCurrentWindow(session, *frame.CurrentForm());
       })},
      {"mnuFileConfigWizard", "", Leads(navigator.StartWiz), saved([&frame] { frame.RunWizard(); })},
      {"mnuFileExit", "cmdExit", {}, [&frame] { frame.close(); }},

      edit("mnuEditUndo", EditCommand::Undo),
      edit("mnuEditCut", EditCommand::Cut),
      edit("mnuEditCopy", EditCommand::Copy),
      edit("mnuEditPaste", EditCommand::Paste),
      rows("mnuEditUndoRow", [](BoundGrid &grid) { grid.UndoRow(); }),
      rows("mnuEditCopyRowNormal", [&session](BoundGrid &grid) { grid.CopyRows(session.windows.rowClipboard); }),
      rows("mnuEditCopyRowExternal", [](BoundGrid &grid) { grid.CopyRowsExternal(); }),
      rows("mnuEditPasteRow", [&session](BoundGrid &grid) { PasteGridRow(session, grid); }),
      rows("mnuEditDeleteRow", [](BoundGrid &grid) { grid.DeleteSelected(); }),
      content("mnuEditDeleteWeight"),
      content("mnuEditGotoPrevious"),
      content("mnuEditGotoNext"),
      content("mnuEditGotoToday"),
      {"mnuEditOtherReset", "", {}, saved([&] {
         if (!ResetWeightLossData(session)) return;
         const QString first = QStringLiteral("1");
         frame.LoadData(ProfileExists(session, first) ? first : session.profile.CurrentPersonID);
       })},
      {"mnuEditReset", "", {}, saved([&] {
         if (!AskResetSampleProfile(session)) return;
         ResetSampleProfile(session, session.profile.CurrentPersonID);
         frame.LoadData(session.profile.CurrentPersonID);
       })},

      form("mnuViewData", "cmdData", QStringLiteral("frmData")),
      form("mnuViewDiary", "cmdDiary", QStringLiteral("frmDiary")),
      form("mnuViewPlan", "cmdPlanner", QStringLiteral("frmPlanner")),
      form("mnuViewGraphs", "cmdGraphs", QStringLiteral("frmGraphs")),
      form("mnuViewLinks", "cmdLinks", QStringLiteral("frmLinks")),

      tool("mnuToolsGoalPlanner", "cmdTools", ToolsPanel::GoalPlanner),
      tool("mnuToolsBodyFat", "", ToolsPanel::BodyFat),
      tool("mnuToolsCaloricNeeds", "", ToolsPanel::CaloricNeeds),
      {"mnuToolsCalculator", "", Unless([] { return !FindCalculator().isEmpty(); }, noCalculator),
       [&] { StartCalculator(session); }},

      {"mnuSettingsOptions", "", Leads(navigator.OpenSetup),
       saved([&navigator] { navigator.OpenSetup(SetupTab::Profiles); })},
      catalog("mnuSettingsFoods", navigator.OpenFoodSetup),
      catalog("mnuSettingsRecipes", navigator.OpenRecipes),
      catalog("mnuSettingsTargets", navigator.OpenTargets),
      catalog("mnuSettingsNutrients", navigator.OpenNutrientSelection),
      catalog("mnuSettingExercises", navigator.OpenExercises),

      {"mnuPPCSync", "", Leads(hooks.RunHandheldSync), saved([&hooks] { hooks.RunHandheldSync(false); })},

      help("mnuHelpHelp", QString()),
      {"mnuHelpTutorial", "", Leads(navigator.StartTutorialSelector, noTutorials),
       [&navigator] { navigator.StartTutorialSelector(); }},
      help("mnuHelpHowTo", QStringLiteral("howto")),
      help("mnuHelpTools", QStringLiteral("tools")),
      page("mnuHelpUsersGuide", product::usersGuidePage),
      page("mnuHelpSupport", product::supportPage),
      page("mnuHelpMobile", product::mobilePage),
      {"mnuHelpAbout", "", {}, [&] { ShowAbout(session, frame); }},
  };
}

}  // namespace trimlog
