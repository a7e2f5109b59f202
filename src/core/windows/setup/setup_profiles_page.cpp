#include "core/windows/setup/setup_profiles_page.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/profiles/goal.h"
#include "core/profiles/profile_list.h"
#include "core/profiles/profiles.h"
#include "core/settings/options.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/grid_follow.h"
#include "core/windows/controls/refused_row.h"
#include "core/windows/profiles/frmEditPassword.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

SetupProfilesPage::SetupProfilesPage(Session &session, const Navigator &navigator, QWidget *parent)
    : SetupPage(parent), session_(session), navigator_(navigator) {
  auto *layout = new QVBoxLayout(this);
  grdPeople = new BoundGrid(QStringLiteral("grdPeople"), QStringLiteral("Profiles"), session.locale, this);
  grdPeople->SetPlaceholderText(
      QStringLiteral("There is no profile yet.  Press \"New Profile...\" to make the first one."));
  grdPeople->SetSpareColumn(QStringLiteral("PersonName"));
  layout->addWidget(grdPeople);
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  cmdNewProfile = AddCommand(row, QStringLiteral("cmdNewProfile"), QStringLiteral("&New Profile..."),
                             QStringLiteral("Adds a profile for another person."));
  cmdDeleteProfile = AddCommand(row, QStringLiteral("cmdDeleteProfile"), QStringLiteral("D&elete Profile"),
                                QStringLiteral("Deletes the marked profiles with all their data."));
  cmdPassword = AddCommand(row, QStringLiteral("cmdPassword"), QStringLiteral("Pass&word..."),
                           QStringLiteral("Sets, changes or removes the password of the marked profile."));
  row->addStretch();
  AddNote(layout, QStringLiteral("lblProfilesNote"),
          QStringLiteral("Changes to profiles are saved as you leave each row."));
  SetHooks();
  connect(cmdNewProfile, &QPushButton::clicked, this, &SetupProfilesPage::OnNewProfile);
  connect(cmdDeleteProfile, &QPushButton::clicked, this, [this] { grdPeople->DeleteSelected(); });
  connect(cmdPassword, &QPushButton::clicked, this, &SetupProfilesPage::OnPassword);
  connect(grdPeople, &BoundGrid::CurrentRowChanged, this, &SetupProfilesPage::UpdateButtons);
}

void SetupProfilesPage::SetHooks() {
  GridHooks &hooks = grdPeople->Hooks();
  hooks.guard = [this](GridAction action, const std::function<void()> &work) {
    return Guarded(session_, ProfileListFailure(action), work);
  };
  hooks.beforeUpdate = [this](GridRowEdit &row) { return RefusedProfileRow(row, uomID_); };
  hooks.beforeDelete = [this](const std::vector<qint64> &keys) {
    return AskDeleteProfiles(session_, static_cast<int>(keys.size()));
  };
  hooks.afterDelete = [this](const std::vector<qint64> &) { Deleted(); };
  FollowTable(*grdPeople, session_, Table::People);
}

void SetupProfilesPage::Load(const Settings &) {
  grdPeople->SetColumns(ProfileColumns(session_));
  grdPeople->Open(session_.Data(), ProfilesSource());
  grdPeople->GoToKey(session_.profile.CurrentPersonID.toLongLong());
  UpdateButtons();
}

void SetupProfilesPage::ShowUnits(int uomID) {
  uomID_ = uomID;
  const UnitLabels labels = LabelsOf(uomID);
  GridModel &model = grdPeople->Model();
  model.SetCaption(QStringLiteral("Goal"), labels.Goal);
  model.SetCaption(QStringLiteral("HeightFeet"), labels.HeightFeet);
  model.SetCaption(QStringLiteral("HeightInches"), labels.HeightInches);
}

void SetupProfilesPage::UpdateButtons() {
  const bool onProfile = grdPeople->CurrentKey().has_value();
  NeedsDoor(*cmdNewProfile, navigator_.CreateProfile);
  cmdDeleteProfile->setEnabled(onProfile);
  cmdPassword->setEnabled(onProfile);
}

QModelIndex SetupProfilesPage::GoalCell() const {
  const GridModel &model = grdPeople->Model();
  return model.index(grdPeople->currentIndex().row(), model.ColumnByName(QStringLiteral("Goal")));
}

bool SetupProfilesPage::Validate() {
  const bool saved = grdPeople->CommitRow();
  if (!grdPeople->CurrentKey()) return saved;
  const QModelIndex goal = GoalCell();
  if (!ConfirmGoal(session_, goal.data(Qt::EditRole).toString())) {
    grdPeople->setFocus();
    return false;
  }
  if (saved) return true;
  const bool goalRefused = !goal.data(GridModel::SentenceRole).toString().isEmpty();
  if (goalRefused && !IsGoal(goal.data(Qt::EditRole).toString(), session_.locale)) {
    // Who goes on with a goal that is no number leaves with the goal that was there.
    grdPeople->setCurrentIndex(goal);
    grdPeople->UndoField();
    if (grdPeople->CommitRow()) return true;
  }
  ShowRefusedRow(session_, QStringLiteral("Invalid Profile"), *grdPeople);
  return false;
}

void SetupProfilesPage::OnNewProfile() {
  if (!grdPeople->CommitRow() || !navigator_.CreateProfile(this)) return;
  UpdateButtons();
}

void SetupProfilesPage::OnPassword() {
  if (!grdPeople->CommitRow() || !grdPeople->CurrentKey()) return;
  const QString name = grdPeople->CurrentField(QStringLiteral("PersonName")).toString();
  frmEditPassword(session_, QString::number(*grdPeople->CurrentKey()), name, this).exec();
}

void SetupProfilesPage::Deleted() {
  const QString next = ProfileToStandOn(session_);
  if (next != session_.profile.CurrentPersonID && navigator_.LoadData) {
    navigator_.LoadData(next);
    // The next profile may ask for a password and be refused; a sample never does.
    if (session_.profile.CurrentPersonID != next) navigator_.LoadData(sampleProfile1);
  }
  UpdateButtons();
}

}  // namespace trimlog
