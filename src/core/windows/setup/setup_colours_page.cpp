#include "core/windows/setup/setup_colours_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/profiles/profile_list.h"
#include "core/settings/options.h"
#include "core/windows/controls/colour_combo.h"
#include "core/windows/controls/grid_follow.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

SetupColoursPage::SetupColoursPage(Session &session, QWidget *parent) : SetupPage(parent), session_(session) {
  auto *layout = new QVBoxLayout(this);
  layout->addWidget(MakeSchemeGroup());
  layout->addWidget(MakeSignGroup());
}

QWidget *SetupColoursPage::MakeSchemeGroup() {
  auto *group = new QGroupBox(QStringLiteral("Color scheme of each profile"), this);
  auto *layout = new QHBoxLayout(group);
  grdPeopleColors =
      new BoundGrid(QStringLiteral("grdPeopleColors"), QStringLiteral("Profiles"), session_.locale, group);
  grdPeopleColors->canDelete = false;
  grdPeopleColors->SetSpareColumn(QStringLiteral("PersonName"));
  grdPeopleColors->SetPlaceholderText(
      QStringLiteral("There is no profile yet.  The tab Profiles makes the first one."));
  grdPeopleColors->Hooks().guard = [this](GridAction action, const std::function<void()> &work) {
    return Guarded(session_, ProfileListFailure(action), work);
  };
  FollowTable(*grdPeopleColors, session_, Table::People);
  layout->addWidget(grdPeopleColors, 1);
  auto *side = new QVBoxLayout;
  layout->addLayout(side);
  auto *label = new QLabel(QStringLiteral("Background &color:"), group);
  cboBackColor =
      new ColourCombo(QStringLiteral("cboBackColor"), QStringLiteral("Background color"), BackColours(), group);
  label->setBuddy(cboBackColor);
  side->addWidget(label);
  side->addWidget(cboBackColor);
  cmdResetBackColor = AddCommand(side, QStringLiteral("cmdResetBackColor"), QStringLiteral("R&eset to Default"),
                                 QStringLiteral("Gives the profile the color that new profiles have."));
  side->addStretch();
  connect(grdPeopleColors, &BoundGrid::CurrentRowChanged, this, &SetupColoursPage::ShowColour);
  connect(cboBackColor, &QComboBox::activated, this, [this] { StoreColour(cboBackColor->Colour()); });
  connect(cmdResetBackColor, &QPushButton::clicked, this, [this] { StoreColour(DefaultBackColor(session_)); });
  return group;
}

QWidget *SetupColoursPage::MakeSignGroup() {
  auto *group = new QGroupBox(QStringLiteral("Weight loss display"), this);
  auto *layout = new QVBoxLayout(group);
  optShowPositive = AddOption(layout, QStringLiteral("optShowPositive"),
                              QStringLiteral("Show weight that I lose as a pos&itive number"));
  optShowNegative = AddOption(layout, QStringLiteral("optShowNegative"),
                              QStringLiteral("Show weight that I lose as a ne&gative number"));
  AddNote(layout, QStringLiteral("lblLossFactorNote"),
          QStringLiteral("This setting affects the calendar, weekly loss, monthly loss, and charts."));
  connect(optShowPositive, &QRadioButton::clicked, this, [this] { StoreLossFactor(session_, 1); });
  connect(optShowNegative, &QRadioButton::clicked, this, [this] { StoreLossFactor(session_, -1); });
  return group;
}

void SetupColoursPage::Load(const Settings &settings) {
  grdPeopleColors->SetColumns(ProfileColourColumns());
  grdPeopleColors->Open(session_.Data(), ProfilesSource());
  grdPeopleColors->GoToKey(session_.profile.CurrentPersonID.toLongLong());
  (settings.LossFactor < 0 ? optShowNegative : optShowPositive)->setChecked(true);
  ShowColour();
}

void SetupColoursPage::ShowColour() {
  const bool onProfile = grdPeopleColors->CurrentKey().has_value();
  cboBackColor->setEnabled(onProfile);
  cmdResetBackColor->setEnabled(onProfile);
  const Value stored = grdPeopleColors->CurrentField(QStringLiteral("BackColor"));
  cboBackColor->SetColour(stored.isNull() ? DefaultBackColor(session_) : stored.toUInt());
}

void SetupColoursPage::StoreColour(quint32 colour) {
  const std::optional<qint64> profile = grdPeopleColors->CurrentKey();
  if (!profile) return;
  StoreBackColor(session_, QString::number(*profile), colour);
  ShowColour();
}

}  // namespace trimlog
