#include "core/windows/frame/frame_menus.h"

#include <algorithm>
#include <vector>

namespace trimlog {

namespace {

enum class Kind { Menu, Item, Submenu, SubmenuEnd, Separator };

struct MenuEntry {
  Kind kind;
  const char *name;
  const char *caption = "";
  const char *keys = "";
  bool hidden = false;
};

constexpr Kind menu = Kind::Menu;
constexpr Kind item = Kind::Item;
constexpr Kind line = Kind::Separator;
constexpr Kind submenu = Kind::Submenu;
constexpr MenuEntry submenuEnd{Kind::SubmenuEnd, ""};
constexpr bool hidden = true;

const std::vector<MenuEntry> &MenuTree() {
  static const std::vector<MenuEntry> tree = {
      {menu, "mnuFile", "&File"},
      {item, "mnuFilePrint", "&Print", "Ctrl+P"},
      {item, "mnuFilePrintWindow", "Print &Window", "Ctrl+Shift+P"},
      {line, "mnuFileSep1"},
      {item, "mnuFileBackup", "&Backup Data..."},
      {item, "mnuFileRestore", "&Restore Data..."},
      {line, "mnuFileSep2"},
      {item, "mnuFileConfigWizard", "&Config. Wizard..."},
      {item, "mnuFileProgramUpdates", "Program &Updates..."},
      {submenu, "mnuFileOther", "Other Tools"},
      {item, "mnuFileImport", "&Import Previous Data..."},
      {item, "mnuFileExport", "Export &Weight Loss and Notes Data..."},
      {item, "mnuFileExportMeals", "Export Current &Meals Data..."},
      {item, "mnuFileExportExercises", "Export Current &Exercise Data..."},
      submenuEnd,
      {line, "mnuFileSep3"},
      {item, "mnuFileProfileAdmin", "Profile Administrator...", "", hidden},
      {item, "mnuFileLogOff", "Log Off", "", hidden},
      {line, "mnuFileSep4", "", "", hidden},
      {item, "mnuFileExit", "E&xit", "Ctrl+Q"},

      {menu, "mnuProfiles", "&Profiles"},

      {menu, "mnuEdit", "&Edit"},
      {item, "mnuEditUndo", "&Undo Field", "Ctrl+Z"},
      {item, "mnuEditUndoRow", "Undo &Row", "", hidden},
      {line, "mnuEditSep1"},
      {item, "mnuEditCut", "Cu&t", "Ctrl+X"},
      {item, "mnuEditCopy", "&Copy", "Ctrl+C"},
      {item, "mnuEditPaste", "&Paste", "Ctrl+V"},
      {item, "mnuEditDeleteWeight", "De&lete Weight", "Ctrl+Del"},
      {line, "mnuEditSep2"},
      {submenu, "mnuEditCopyRow", "C&opy Row(s)"},
      {item, "mnuEditCopyRowNormal", "&Normal Copy"},
      {item, "mnuEditCopyRowExternal", "&For External Use"},
      submenuEnd,
      {item, "mnuEditPasteRow", "P&aste Row(s)"},
      {item, "mnuEditDeleteRow", "&Delete Row(s)"},
      {line, "mnuEditSep3"},
      {submenu, "mnuEditGoto", "GoTo"},
      {item, "mnuEditGotoPrevious", "Pre&vious Month", "Ctrl+PgUp"},
      {item, "mnuEditGotoNext", "Ne&xt Month", "Ctrl+PgDown"},
      {item, "mnuEditGotoToday", "&Today", "Ctrl+T"},
      submenuEnd,
      {submenu, "mnuEditOther", "Other Functions"},
      {item, "mnuEditOtherReset", "&Reset Weight Loss Data"},
      submenuEnd,
      {item, "mnuEditReset", "Re&set Sample Profile", "", hidden},

      {menu, "mnuView", "&View"},
      {item, "mnuViewData", "&Calendar...", "Ctrl+1"},
      {item, "mnuViewDiary", "&Journal...", "Ctrl+2"},
      {item, "mnuViewPlan", "&Planner...", "Ctrl+3"},
      {item, "mnuViewGraphs", "&Charts...", "Ctrl+4"},
      {item, "mnuViewLinks", "&Links...", "Ctrl+5"},

      {menu, "mnuTools", "&Tools"},
      {item, "mnuToolsGoalPlanner", "&Goal Planner..."},
      {item, "mnuToolsBodyFat", "&Body Fat Assessment..."},
      {item, "mnuToolsCaloricNeeds", "Caloric &Needs Estimator..."},
      {item, "mnuToolsCalculator", "&Calculator..."},

      {menu, "mnuSettings", "&Settings"},
      {item, "mnuSettingsOptions", "&Program Options...", "Ctrl+,"},
      {item, "mnuSettingsFoods", "&Foods and Meals..."},
      {item, "mnuSettingsRecipes", "&Recipes..."},
      {item, "mnuSettingsTargets", "Nutritional &Targets..."},
      {item, "mnuSettingsNutrients", "&Nutrient Selections..."},
      {item, "mnuSettingExercises", "&Exercises and Activities..."},
      {item, "mnuSettingsLinks", "&Links to Web Sites..."},

      {menu, "mnuPPC", "&Mobile", "", hidden},
      {item, "mnuPPCSync", "&Synchronize Now"},
      {item, "mnuPPCConfig", "&Configure"},

      {menu, "mnuPalm", "P&alm", "", hidden},
      {item, "mnuPalmConfig", "&Configure"},
      {item, "mnuPalmReinstall", "Re-install Handheld Files"},

      {menu, "mnuHelp", "&Help"},
      {item, "mnuHelpHelp", "&Trimlog Pro Help", "F1"},
      {item, "mnuHelpTutorial", "Quick &Tutorials..."},
      {item, "mnuHelpHowTo", "How To..."},
      {item, "mnuHelpTools", "About the &Tools..."},
      {line, "mnuHelpSep1"},
      {item, "mnuHelpUsersGuide", "&User's Guide..."},
      {item, "mnuHelpSupport", "&Support..."},
      {item, "mnuHelpMobile", "&Mobile Devices..."},
      {line, "mnuHelpSep2"},
      {item, "mnuHelpAbout", "&About Trimlog Pro..."},
  };
  return tree;
}

}  // namespace

FrameMenus::FrameMenus(QMenuBar *bar) : QObject(bar) {
  QMenu *top = nullptr;
  QMenu *current = nullptr;
  for (const MenuEntry &entry : MenuTree()) {
    const QString name = QString::fromLatin1(entry.name);
    const QString caption = QString::fromLatin1(entry.caption);
    QAction *action = nullptr;
    switch (entry.kind) {
      case Kind::SubmenuEnd:
        current = top;
        continue;
      case Kind::Menu:
      case Kind::Submenu: {
        QMenu *made = entry.kind == Kind::Menu ? bar->addMenu(caption) : top->addMenu(caption);
        if (entry.kind == Kind::Menu) top = made;
        current = made;
        made->setObjectName(name);
        made->setToolTipsVisible(true);
        action = made->menuAction();
        if (entry.kind == Kind::Submenu) submenus_.append(action);
        break;
      }
      case Kind::Separator:
        action = current->addSeparator();
        break;
      case Kind::Item:
        action = current->addAction(caption);
        action->setShortcut(QKeySequence(QString::fromLatin1(entry.keys)));
        commands_.append(name);
        break;
    }
    // A menu's own entry shares the menu's name; only the menu itself carries it, so that a name names one object.
    if (!action->menu()) action->setObjectName(name);
    action->setVisible(!entry.hidden);
    actions_.insert(name, action);
  }
  profiles_ = actions_.value(QStringLiteral("mnuProfiles"))->menu();
}

QAction *FrameMenus::Action(const QString &name) const { return actions_.value(name); }

void FrameMenus::SetVisible(const QString &name, bool visible) {
  if (QAction *action = Action(name)) action->setVisible(visible);
}

QStringList FrameMenus::CommandNames() const { return commands_; }

void FrameMenus::SetAvailable(const QString &name, const QString &whyNot) {
  QAction *action = Action(name);
  action->setEnabled(whyNot.isEmpty());
  action->setToolTip(whyNot);
  action->setStatusTip(whyNot);
}

void FrameMenus::CloseEmptySubmenus() {
  for (QAction *submenu : submenus_) {
    const QList<QAction *> entries = submenu->menu()->actions();
    const bool any = std::any_of(entries.begin(), entries.end(), [](const QAction *entry) {
      return entry->isVisible() && entry->isEnabled() && !entry->isSeparator();
    });
    submenu->setEnabled(any);
    submenu->setToolTip(any || entries.isEmpty() ? QString() : entries.first()->toolTip());
  }
}

}  // namespace trimlog
