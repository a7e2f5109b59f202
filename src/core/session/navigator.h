#pragma once

#include <QString>
#include <functional>

#include "core/session/form_door.h"

class QWidget;

namespace trimlog {

enum class SetupTab { Profiles, Calendar, Charts, Rewards, Colors, Journal, Other };
enum class ToolsPanel { GoalPlanner, CaloricNeeds, BodyFat };

/// The doors between rooms. Windows never include each other; they open one another through here, and app fills the
/// doors in. A door that leads nowhere yet is empty, and what would open it is shown disabled.
struct Navigator {
  FormDoor ShowForm;                                      ///< "frmData", ...: the one content window
  std::function<void(const QString &personID)> LoadData;  ///< switches the whole session to a profile
  std::function<void(SetupTab tab)> OpenSetup;
  std::function<void(ToolsPanel panel)> OpenTools;
  std::function<bool(bool force)> StartWiz;  ///< the configuration wizard; true when it wrote a profile
  std::function<void(QWidget *owner)> OpenFoodSetup;
  std::function<void(QWidget *owner)> OpenNutrientSelection;
  std::function<void(QWidget *owner)> OpenTargets;  ///< nutrition targets
  std::function<void(QWidget *owner)> OpenRecipes;
  std::function<void(QWidget *owner)> OpenExercises;
  std::function<void(QWidget *owner)> OpenQuickJournal;
  /// Adds a further profile through the generic add dialog; true when one was added.
  std::function<bool(QWidget *owner)> AddProfile;
  /// Makes a profile: the first of all with the wizard, and loads it; every other one through AddProfile. True when one
  /// was made.
  std::function<bool(QWidget *owner)> CreateProfile;
  std::function<void(QWidget *owner)> ImportData;  ///< takes over the data of an earlier release
  std::function<void(const QString &topic)> ShowHelp;
  std::function<void()> StartTutorialSelector;  ///< launches the tutorial selector beside the program
  std::function<void()> ExitProgram;            ///< closes the frame
  std::function<void()> ResetMainWindow;        ///< the frame back to its first size, centred
  std::function<void()> ResetQuickJournal;      ///< an open Quick Journal to the place in the session
};

}  // namespace trimlog
