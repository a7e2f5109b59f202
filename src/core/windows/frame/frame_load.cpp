// The main window's way from nothing to the first screen.
#include <QApplication>
#include <QDir>
#include <QFile>

#include "core/frame/frame_data.h"
#include "core/session/failure_guard.h"
#include "core/session/product.h"
#include "core/start/edition.h"
#include "core/windows/frame/frmMDI.h"
#include "core/windows/frame/frmMain.h"
#include "core/windows/frame/frmSplash.h"
#include "core/windows/profiles/frmPassword.h"

namespace trimlog {

bool frmMDI::MDIForm_Load() {
  if (!QFile::exists(session_.DataFilePath())) {
    session_.boxes.Critical(
        QStringLiteral("Trimlog"),
        QStringLiteral("The program was unable to find the data file: %1.  The program cannot start "
                       "without this file.")
            .arg(QDir::toNativeSeparators(session_.DataFilePath())));
    return false;
  }
  const FailureExit failure{QStringLiteral("frmMDI"), QStringLiteral("MDIForm_Load"),
                            QStringLiteral("Error Loading Program"),
                            QStringLiteral("An error occurred while loading the program.")};
  Guarded(session_, failure, [this] {
    loaded_ = false;
    menus_->SetVisible(QStringLiteral("mnuFileProfileAdmin"), session_.edition.BizEd);
    menus_->SetVisible(QStringLiteral("mnuFileSep4"), session_.edition.BizEd);
    SetTitle();
    ApplyPlace();  // before anything is shown that the frame owns: windows are placed by their owner
    ShowStartScreens();
    SignIn();
    RefreshMain();
    ShowForm(QStringLiteral("frmData"));
    ShowAsKept();
    CloseSplash();
    StartWizardIfNeeded();
    LoadProfilesMenu();
    loaded_ = true;
    if (!session_.ReloadInProgress && session_.settings.ShowTutorial && navigator_.StartTutorialSelector) {
      QApplication::processEvents();
      navigator_.StartTutorialSelector();
    }
    ShowHandheldMenus();
  });
  CloseSplash();
  RefreshCommands();
  for (const FrameCommand &command : commands_) {
    if (!*command.button) continue;
    navigation_->SetCommand(QString::fromLatin1(command.button), command.run, command.WhyNot());
  }
  ShowAsKept();
  return true;
}

void frmMDI::SetTitle() {
  const QString title = ApplicationTitle(session_);
  session_.boxes.programTitle = title;
  setWindowTitle(title);
}

void frmMDI::ShowStartScreens() {
  if (!session_.ReloadInProgress && session_.settings.ShowSplash) {
    splash_ = new frmSplash(session_, system_, false, this);
    splash_->setAttribute(Qt::WA_DeleteOnClose);
    splash_->adjustSize();
    const bool maximised = session_.windows.frameWindowState == maximisedState;
    const QPoint middle = maximised ? screen()->availableGeometry().center() : frameGeometry().center();
    splash_->move(middle - splash_->rect().center());
    splash_->show();
    QApplication::processEvents();
  }
}

void frmMDI::CloseSplash() {
  if (splash_) splash_->close();
}

void frmMDI::SignIn() {
  const QString read = session_.profile.CurrentPersonID;
  if (!CheckProfilePassword(session_, read, true, this)) session_.profile.CurrentPersonID = sampleProfile1;
  if (session_.profile.CurrentPersonID != read) ApplyProfile(session_, hooks_, session_.profile.CurrentPersonID);
  menus_->SetVisible(QStringLiteral("mnuEditReset"), session_.profile.IsSample());
}

void frmMDI::StartWizardIfNeeded() {
  if (session_.profile.CurrentPersonID.toInt() != 1) return;
  if (!session_.ReloadInProgress && navigator_.StartWiz && navigator_.StartWiz(false)) {
    SwitchTo(session_.profile.CurrentPersonID);
  } else if (!ProfileExists(session_, session_.profile.CurrentPersonID)) {
    SwitchTo(sampleProfile1);  // a wizard that was closed made nobody for whom anything could be saved
  }
}

void frmMDI::ShowHandheldMenus() {
  if (HasHandheldMeals(session_)) menus_->SetVisible(QStringLiteral("mnuPalm"), true);
  if (session_.edition.HandheldSupport) menus_->SetVisible(QStringLiteral("mnuPPC"), true);
}

}  // namespace trimlog
