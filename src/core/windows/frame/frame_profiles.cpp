// The main window's part in switching profiles: the Profiles menu, and what is rebuilt for another person.
#include "core/session/failure_guard.h"
#include "core/windows/frame/frmMDI.h"
#include "core/windows/profiles/frmPassword.h"

namespace trimlog {

void frmMDI::LoadData(const QString &personID) {
  Guarded(session_, LoadDataFailure(), [this, &personID] {
    if (!SaveOpenEdit()) return;
    if (!session_.edition.BizEdLoginMode && !CheckProfilePassword(session_, personID, false, this)) return;
    SwitchTo(personID);
  });
}

void frmMDI::SwitchTo(const QString &personID) {
  ApplyProfile(session_, hooks_, personID);
  menus_->SetVisible(QStringLiteral("mnuEditReset"), session_.profile.IsSample());
  if (!currentFormName_.isEmpty()) ReplaceForm(currentFormName_);
  RefreshMain();
  LoadProfilesMenu();
}

void frmMDI::LoadProfilesMenu() {
  QMenu *menu = menus_->Profiles();
  for (QAction *former : menu->actions()) {
    menu->removeAction(former);
    former->deleteLater();  // it may be the one whose command runs now
  }
  const QList<ProfileMenuEntry> entries = ProfilesMenuEntries(session_, FillProfilesArray(session_));
  for (int index = 0; index < entries.size(); ++index) {
    const ProfileMenuEntry &entry = entries[index];
    QAction *action =
        entry.command == ProfileCommand::Separator ? menu->addSeparator() : menu->addAction(entry.caption);
    action->setObjectName(QStringLiteral("mnuProfileNames(%1)").arg(index));
    action->setEnabled(CanRunProfileCommand(entry.command));
    const bool profile = entry.command == ProfileCommand::Load || entry.command == ProfileCommand::LoadSample;
    action->setCheckable(profile);
    action->setChecked(profile && entry.checked);
    connect(action, &QAction::triggered, this, [this, entry] {
      Guarded(session_, CommandFailure(QStringLiteral("mnuProfileNames")), [this, &entry] {
        RunProfileCommand(entry);
        LoadProfilesMenu();  // a click toggles the mark, also when the switch was refused
      });
    });
  }
}

bool frmMDI::CanRunProfileCommand(ProfileCommand command) const {
  switch (command) {
    case ProfileCommand::Load:
    case ProfileCommand::LoadSample:
    case ProfileCommand::Separator:
      return true;
    case ProfileCommand::CreateProfile:
      return HasNoProfiles(session_) ? navigator_.StartWiz != nullptr : navigator_.AddProfile != nullptr;
    case ProfileCommand::EditProfiles:
      return navigator_.OpenSetup != nullptr;
    case ProfileCommand::SelectProfile:
    case ProfileCommand::Administrator:
      return false;
  }
  return false;
}

void frmMDI::RunProfileCommand(const ProfileMenuEntry &entry) {
  switch (entry.command) {
    case ProfileCommand::Load:
      LoadData(entry.PersonID);
      break;
    case ProfileCommand::LoadSample:
      LoadData(entry.PersonID);
      if (session_.profile.CurrentPersonID == entry.PersonID) ShowSampleWelcome(session_, entry.PersonID);
      break;
    case ProfileCommand::CreateProfile:
      if (SaveOpenEdit()) CreateProfile(this);
      break;
    case ProfileCommand::EditProfiles:
      if (SaveOpenEdit()) navigator_.OpenSetup(SetupTab::Profiles);
      break;
    case ProfileCommand::Separator:
    case ProfileCommand::SelectProfile:
    case ProfileCommand::Administrator:
      break;
  }
}

bool frmMDI::CreateProfile(QWidget *owner) {
  bool made = false;
  Guarded(session_, LoadDataFailure(), [this, owner, &made] {
    if (!HasNoProfiles(session_)) {
      made = navigator_.AddProfile(owner);
      return;
    }
    const QString before = session_.profile.CurrentPersonID;
    session_.profile.CurrentPersonID = QStringLiteral("1");
    made = navigator_.StartWiz(true);
    if (!made && session_.profile.CurrentPersonID == QStringLiteral("1") && HasNoProfiles(session_)) {
      session_.profile.CurrentPersonID = before;
    }
    SwitchTo(session_.profile.CurrentPersonID);
  });
  return made;
}

void frmMDI::GoToOwnProfile() {
  Guarded(session_, LoadDataFailure(), [this] {
    QString own = session_.profile.LastRealPersonID;
    if (!ProfileExists(session_, own)) {
      const QList<ProfileEntry> profiles = FillProfilesArray(session_);
      own = profiles.isEmpty() ? QString() : profiles.first().PersonID;
    }
    if (!own.isEmpty()) {
      LoadData(own);
    } else if (CanRunProfileCommand(ProfileCommand::CreateProfile)) {
      ProfileMenuEntry create;
      create.command = ProfileCommand::CreateProfile;
      RunProfileCommand(create);
    }
  });
}

void frmMDI::RunWizard() {
  if (navigator_.StartWiz(true)) SwitchTo(session_.profile.CurrentPersonID);
}

}  // namespace trimlog
