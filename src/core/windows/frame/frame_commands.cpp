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

/// A door that leads somewhere makes what opens it available.
template <typename Door>
std::function<bool()> Leads(const Door &door) {
  return [&door] { return door != nullptr; };
}

}  // namespace

std::vector<FrameCommand> FrameCommands(frmMDI &frame, Session &session, const Navigator &navigator,
                                        const RoomHooks &hooks) {
  const auto form = [&frame](const char *menu, const char *button, const QString &name) {
    return FrameCommand{menu, button, [&frame, name] { return frame.CanShowForm(name); },
                        [&frame, name] { frame.ShowForm(name); }};
  };
  const auto edit = [&frame](const char *menu, EditCommand command) {
    return FrameCommand{menu, "", [&frame, command] { return CanRunEditCommand(command, frame.ActiveControl()); },
                        [&frame, command] { RunEditCommand(command, frame.ActiveControl()); }};
  };
  const auto content = [&frame](const char *menu, void (ContentWindow::*command)()) {
    return FrameCommand{menu, "", {}, [&frame, command] {
                          if (frame.CurrentForm()) (frame.CurrentForm()->*command)();
                        }};
  };
  const auto rows = [&frame](const char *menu, const std::function<void(BoundGrid &)> &command) {
    return FrameCommand{menu, "", [&frame] { return GridOf(frame.ActiveControl()) != nullptr; },
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
      content("mnuFilePrint", &ContentWindow::PrintContents),
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
      content("mnuEditDeleteWeight", &ContentWindow::DeleteWeight),
      content("mnuEditGotoPrevious", &ContentWindow::GotoPreviousMonth),
      content("mnuEditGotoNext", &ContentWindow::GotoNextMonth),
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
      {"mnuToolsCalculator", "", [] { return !FindCalculator().isEmpty(); }, [&] { StartCalculator(session); }},

      {"mnuSettingsOptions", "", Leads(navigator.OpenSetup),
       saved([&navigator] { navigator.OpenSetup(SetupTab::Profiles); })},
      catalog("mnuSettingsFoods", navigator.OpenFoodSetup),
      catalog("mnuSettingsRecipes", navigator.OpenRecipes),
      catalog("mnuSettingsTargets", navigator.OpenTargets),
      catalog("mnuSettingsNutrients", navigator.OpenNutrientSelection),
      catalog("mnuSettingExercises", navigator.OpenExercises),

      {"mnuPPCSync", "", Leads(hooks.RunHandheldSync), saved([&hooks] { hooks.RunHandheldSync(false); })},

      help("mnuHelpHelp", QString()),
      {"mnuHelpTutorial", "", Leads(hooks.StartTutorialSelector), [&hooks] { hooks.StartTutorialSelector(); }},
      help("mnuHelpHowTo", QStringLiteral("howto")),
      help("mnuHelpTools", QStringLiteral("tools")),
      page("mnuHelpUsersGuide", product::usersGuidePage),
      page("mnuHelpSupport", product::supportPage),
      page("mnuHelpMobile", product::mobilePage),
      {"mnuHelpAbout", "", {}, [&] { ShowAbout(session, frame); }},
  };
}

}  // namespace trimlog
