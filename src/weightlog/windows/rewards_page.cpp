#include "weightlog/windows/rewards_page.h"

#include <QButtonGroup>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/settings/options.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"
#include "weightlog/windows/frmReward.h"

namespace trimlog {

RewardsPage::RewardsPage(Session &session, QWidget *parent) : SetupPage(parent), session_(session) {
  auto *layout = new QVBoxLayout(this);
  layout->addWidget(MakeRuleGroup());
  layout->addWidget(MakeNoticeGroup());
  pnlRewardNote = AddNote(layout, QStringLiteral("pnlRewardNote"), {});
  layout->addStretch();
  // Deleting the loaded profile loads another one under the open window, whose rule must not be taken for this one's.
  connect(&session.changes, &DataChanges::ProfileLoaded, this, [this] {
    if (session_.profile.CurrentPersonID != personID_) Load(session_.settings);
  });
  connect(&session.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (change.table == Table::People && change.Concerns(personID_)) ShowProfile();
  });
}

QWidget *RewardsPage::MakeRuleGroup() {
  fraRewards = new QGroupBox(this);
  fraRewards->setObjectName(QStringLiteral("fraRewards"));
  auto *grid = new QGridLayout(fraRewards);
  options_ = new QButtonGroup(this);
  auto *never = new QRadioButton(QStringLiteral("Never"), fraRewards);
  never->setObjectName(QStringLiteral("optRewardNone"));
  options_->addButton(never, static_cast<int>(RewardType::Never));
  grid->addWidget(never, 0, 0);
  daily_ = AddAmount(grid, RewardType::Daily, QStringLiteral("RewardDaily"), QStringLiteral("Daily, if I Lose:"),
                     QStringLiteral("Loss since the last weigh-in"));
  weekly_ = AddAmount(grid, RewardType::Weekly, QStringLiteral("RewardWeekly"), QStringLiteral("Weekly, if I Lose:"),
                      QStringLiteral("Loss of the week"));
  weight_ = AddAmount(grid, RewardType::PersonalWeight, QStringLiteral("RewardWeight"),
                      QStringLiteral("When I Reach the Following Weight:"), QStringLiteral("Weight to reach"));
  grid->setColumnStretch(3, 1);
  connect(options_, &QButtonGroup::idClicked, this, [this](int type) { OnChosen(static_cast<RewardType>(type)); });
  return fraRewards;
}

RewardsPage::AmountRow RewardsPage::AddAmount(QGridLayout *grid, RewardType type, const QString &kind,
                                              const QString &caption, const QString &spoken) {
  const int row = grid->rowCount();
  auto *option = new QRadioButton(caption);
  option->setObjectName(QStringLiteral("opt") + kind);
  options_->addButton(option, static_cast<int>(type));
  AmountRow amount;
  amount.field = new NumberField(QStringLiteral("txt") + kind, spoken, session_.locale);
  amount.field->setMaximumWidth(amount.field->fontMetrics().averageCharWidth() * 12);
  amount.unit = new QLabel;
  amount.unit->setObjectName(QStringLiteral("lbl") + kind);
  grid->addWidget(option, row, 0);
  grid->addWidget(amount.field, row, 1);
  grid->addWidget(amount.unit, row, 2);
  return amount;
}

QWidget *RewardsPage::MakeNoticeGroup() {
  auto *group = new QGroupBox(QStringLiteral("Message and sound"), this);
  auto *form = new QFormLayout(group);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  txtRewardMessage = new TextField(QStringLiteral("txtRewardMessage"), QStringLiteral("Reward message"), 0, group);
  form->addRow(QStringLiteral("&Message:"), txtRewardMessage);
  auto *row = new QHBoxLayout;
  txtRewardSound = new TextField(QStringLiteral("txtRewardSound"), QStringLiteral("Reward sound"), 0, group);
  row->addWidget(txtRewardSound);
  auto *cmdBrowse = AddCommand(row, QStringLiteral("cmdBrowse"), QStringLiteral("&Browse..."),
                               QStringLiteral("Chooses another sound file."));
  form->addRow(QStringLiteral("&Sound:"), row);
  if (auto *label = qobject_cast<QLabel *>(form->labelForField(row))) label->setBuddy(txtRewardSound);
  auto *testRow = new QHBoxLayout;
  cmdTest = AddCommand(testRow, QStringLiteral("cmdTest"), QStringLiteral("Test R&eward"),
                       QStringLiteral("Shows and plays the reward as it will come."));
  testRow->addStretch();
  form->addRow(testRow);
  connect(cmdBrowse, &QPushButton::clicked, this, &RewardsPage::OnBrowse);
  connect(cmdTest, &QPushButton::clicked, this, &RewardsPage::OnTest);
  return group;
}

RewardsPage::AmountRow *RewardsPage::RowOf(RewardType type) {
  switch (type) {
    case RewardType::PersonalWeight:
      return &weight_;
    case RewardType::Daily:
      return &daily_;
    case RewardType::Weekly:
      return &weekly_;
    default:
      return nullptr;
  }
}

RewardType RewardsPage::ChosenType() const {
  return options_->checkedId() < 0 ? RewardType::Never : static_cast<RewardType>(options_->checkedId());
}

RewardForm RewardsPage::Form() const {
  return {ChosenType(),          daily_.field->text(),     weekly_.field->text(),
          weight_.field->text(), txtRewardMessage->text(), txtRewardSound->text()};
}

void RewardsPage::Show(const RewardForm &form) {
  if (QAbstractButton *option = options_->button(static_cast<int>(form.type))) option->setChecked(true);
  daily_.field->setText(form.daily);
  weekly_.field->setText(form.weekly);
  weight_.field->setText(form.weight);
  txtRewardMessage->setText(form.message);
  txtRewardSound->setText(form.sound);
  UpdateFields();
}

void RewardsPage::Load(const Settings &) {
  personID_ = session_.profile.CurrentPersonID;
  ShowProfile();
  Show(ReadRewardForm(session_));
}

void RewardsPage::ShowProfile() {
  const QString personName = RewardProfileName(session_);
  fraRewards->setTitle(RewardTitle(personName).replace(QLatin1Char('&'), QStringLiteral("&&")));
  pnlRewardNote->setText(RewardNote(personName));
}

void RewardsPage::UpdateFields() {
  for (RewardType type : {RewardType::Daily, RewardType::Weekly, RewardType::PersonalWeight}) {
    RowOf(type)->field->setEnabled(type == ChosenType());
  }
  cmdTest->setEnabled(ChosenType() != RewardType::Never);
}

void RewardsPage::OnChosen(RewardType type) {
  UpdateFields();
  AmountRow *row = RowOf(type);
  if (row && row->field->text().isEmpty()) row->field->setText(ProposedAmount(session_, type, uomID_));
}

void RewardsPage::ShowUnits(int uomID) {
  const bool changed = uomID_ != 0 && uomID_ != uomID;
  uomID_ = uomID;
  for (AmountRow *row : {&daily_, &weekly_, &weight_}) row->unit->setText(LabelsOf(uomID).weight);
  if (!changed) return;
  RewardForm form = Form();
  SwapRewardDefaults(form, uomID, session_.locale);
  Show(form);
}

bool RewardsPage::Validate() {
  RewardForm form = Form();
  if (CheckRewardForm(session_, form)) return true;
  RowOf(form.type)->field->setFocus();
  RowOf(form.type)->field->selectAll();
  return false;
}

bool RewardsPage::Save() {
  RewardForm form = Form();
  return SaveRewardForm(session_, form);
}

void RewardsPage::OnBrowse() {
  const QString path = session_.boxes.ChooseOpenFile(
      QStringLiteral("Select a Sound File"), {QStringLiteral("Sound Files (*.wav)"), QStringLiteral("All Files (*.*)")},
      QFileInfo(txtRewardSound->text()).path());
  if (!path.isEmpty()) txtRewardSound->setText(path);
}

void RewardsPage::OnTest() {
  const RewardForm form = Form();
  const RewardNotice notice{RewardTestTitle(form.type), {}, form.message, form.sound};
  frmReward(session_, notice, this).exec();
}

SetupPageMaker RewardsTab() {
  return {SetupTab::Rewards, QStringLiteral("&Rewards"),
          [](Session &session, const Navigator &, QWidget *parent) -> SetupPage * {
            return new RewardsPage(session, parent);
          }};
}

}  // namespace trimlog
