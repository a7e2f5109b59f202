#pragma once

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <vector>

#include "core/profiles/profiles.h"
#include "core/session/navigator.h"
#include "core/session/room_hooks.h"
#include "core/session/session.h"
#include "core/windows/frame/content_window.h"
#include "core/windows/frame/frame_commands.h"
#include "core/windows/frame/frame_menus.h"
#include "platform/machine/operating_system.h"

class QVBoxLayout;

namespace trimlog {

class frmMain;
class frmMain1;
class frmSplash;

/// Makes a content window, by its class name. A name that is missing is a window that is not built.
using ContentForms = QHash<QString, std::function<ContentWindow *(QWidget *parent)>>;

/// What the main window stands on; everything named here outlives it.
struct FrameParts {
  Session &session;
  const Navigator &navigator;
  const RoomHooks &hooks;
  const OperatingSystem &system;
  ContentForms forms;
  std::function<bool()> QueryUnload;  ///< the shutdown sequence; false keeps the window open
};

/// The one top-level window: menus, statistics panel, navigation panel and one content window at a time.
class frmMDI : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmMDI(const FrameParts &parts);
  ~frmMDI() override;

  /// Fills the window and shows it, in the order of a start. False when the program cannot run; its box was shown.
  bool MDIForm_Load();

  /// Shows a content window in place of the current one, unless that one refuses to be left.
  void ShowForm(const QString &name, const FormOpening &opening = {});
  bool HasForm(const QString &name) const { return forms_.contains(name); }
  ContentWindow *CurrentForm() const { return currentForm_; }
  const QString &CurrentFormName() const { return currentFormName_; }
  /// What only the window that a person works in can do: the content window, or the Quick Journal while it is active.
  WindowCommands FormCommands() const;
  /// The control of that window that has, or last had, the focus.
  QWidget *ActiveControl() const;
  /// Saves what is being typed; false when that did not work and it stays to be put right.
  bool SaveOpenEdit() { return LeaveOpenEdit() == EditOutcome::Saved; }
  EditOutcome LeaveOpenEdit();
  void DropOpenEdit();

  /// Switches the whole session to a profile, after its password.
  void LoadData(const QString &personID);
  /// Rebuilds the Profiles menu.
  void LoadProfilesMenu();
  /// Refreshes the two panels.
  void RefreshMain();
  /// The configuration wizard on demand; what it wrote is loaded.
  void RunWizard();
  /// From a sample to the person's own profile; the first one is made on the way.
  void GoToOwnProfile();
  /// Makes a profile: the first one with the wizard, and loads it; a further one with the add dialog. True when made.
  bool CreateProfile(QWidget *owner);

  void CloseSplash();
  /// The window's place and state into the session, in twips.
  void ReadPlace();
  /// Moves the window to the session's place, onto the screen when that lies outside it.
  void ApplyPlace();
  /// Back to the first size, in the middle of the screen.
  void ResetPlace();

  const OperatingSystem &System() const { return system_; }
  FrameMenus &Menus() { return *menus_; }

 protected:
  bool event(QEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  static constexpr int maximisedState = 2;  ///< of session.windows.frameWindowState

  void BuildPanels();
  void ConnectCommands();
  void RefreshCommands();
  void SetMenusFor(const QString &name);
  void ReplaceForm(const QString &name, const QDate &date = {});
  ContentWindow *QuickJournal() const;
  ContentWindow *WindowWorkedIn() const;
  void ShowQuickJournal(bool visible);

  void ShowAsKept();
  void KeepContentsWhole();
  void SetTitle();
  void ShowStartScreens();
  void SignIn();
  void StartWizardIfNeeded();
  void ShowHandheldMenus();

  void SwitchTo(const QString &personID);
  void RunProfileCommand(const ProfileMenuEntry &entry);
  bool CanRunProfileCommand(ProfileCommand command) const;

  Session &session_;
  const Navigator &navigator_;
  const RoomHooks &hooks_;
  const OperatingSystem &system_;
  const ContentForms forms_;
  const std::function<bool()> QueryUnload_;

  FrameMenus *menus_ = nullptr;
  std::vector<FrameCommand> commands_;
  frmMain1 *statistics_ = nullptr;
  frmMain *navigation_ = nullptr;
  QVBoxLayout *content_ = nullptr;
  QPointer<frmSplash> splash_;
  ContentWindow *currentForm_ = nullptr;
  QString currentFormName_;
  bool loaded_ = false;
};

}  // namespace trimlog
