#pragma once

#include <QDialog>
#include <array>

#include "core/session/navigator.h"
#include "core/session/session.h"
#include "tools/tools_profile.h"

class QComboBox;
class QPushButton;
class QScrollArea;
class QStackedWidget;

namespace trimlog {

class BodyFatPage;
class CaloricNeedsPage;
class PlannerPage;

/// The window "Tools and Calculators": one of three panels at a time, chosen in cboTools. Follows the profile's data
/// while it is open. The plan's method, date and rate are stored when it closes, however it closes.
class frmTools : public QDialog {
  Q_OBJECT
 public:
  frmTools(Session &session, const Navigator &navigator, ToolsPanel panel, QWidget *parent = nullptr);

  void done(int result) override;

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  enum class Opened { GoOn, Left };

  void AddChoice(QLayout *layout);
  void AddPages(QLayout *layout);
  void AddButtons(QLayout *layout);
  std::array<QWidget *, 3> Pages() const;
  /// The notices and questions on opening, and the first calculation; once.
  void Activate();
  Opened GreetPerson();
  Opened AskForMissingData();
  void Lock();
  void LeaveFor(const std::function<void()> &door);
  void SelectTool(int index);
  void FillTool();
  /// How high the panels are at a width, which their notes wrap at.
  int PanelsHeight(int width) const;
  /// Grows the window until no panel is cut, as far as the screen allows.
  void FitToPanels();
  void ShowBarWhereNeeded();
  void KeepOnScreen();
  void FollowChange(const DataChange &change);
  void PrintResults();

  Session &session_;
  const Navigator &navigator_;
  ToolsProfile profile_;
  bool activated_ = false;
  bool planShown_ = false;  ///< the fields hold the profile's plan and may be stored
  QComboBox *cboTools = nullptr;
  QScrollArea *scroll_ = nullptr;
  QStackedWidget *panels_ = nullptr;
  PlannerPage *pnlPlanner = nullptr;
  CaloricNeedsPage *pnlBMR = nullptr;
  BodyFatPage *pnlBodyFat = nullptr;
  QPushButton *cmdPrint = nullptr;
  QPushButton *cmdHelp = nullptr;
  QPushButton *cmdClose = nullptr;
};

/// Opens the window on a panel and returns when it is closed.
void OpenTools(Session &session, const Navigator &navigator, ToolsPanel panel, QWidget *owner);
/// Closes the window, keeping the plan, when it is open: the program is about to end.
void CloseToolsWindow();

}  // namespace trimlog
