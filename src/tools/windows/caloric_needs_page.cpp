#include "tools/windows/caloric_needs_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/session/failure_guard.h"
#include "platform/windows/controls/field_left.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/result_text.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/fields/number_field.h"
#include "tools/windows/activity_chart.h"
#include "tools/windows/tool_colours.h"

namespace trimlog {

namespace {

constexpr int linesOfSummary = 6;

QLabel *KeepPlaceWhenHidden(QLabel *label) {
  QSizePolicy policy = label->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  label->setSizePolicy(policy);
  return label;
}

}  // namespace

CaloricNeedsPage::CaloricNeedsPage(Session &session, const ToolsProfile &profile, QWidget *parent)
    : QWidget(parent), session_(session), profile_(profile) {
  setObjectName(QStringLiteral("pnlBMR"));
  GreyDisabledLabels(this);
  auto *layout = new QVBoxLayout(this);
  AddHeading(layout, QStringLiteral("lblBMRTitle"), QStringLiteral("Estimating Your Caloric Needs:"));
  AddInputs(layout);
  AddResults(layout);
  chart_ = new ActivityChart(session_, this);
  layout->addWidget(chart_);
  pnlBMRSummary = new ResultText(QStringLiteral("pnlBMRSummary"), this);
  pnlBMRSummary->MakeFrame(linesOfSummary);
  auto *place = new QGridLayout;
  layout->addLayout(place, 1);
  place->addWidget(KeepPlaceWhenHidden(pnlBMRSummary), 0, 0);
  note_ = new ResultText(QStringLiteral("lblBMRSummaryNote"), this);
  note_->MakeFrame(1);
  note_->SetHint(QStringLiteral("What your activity level comes to will stand here."));
  note_->setFocusPolicy(Qt::NoFocus);
  place->addWidget(note_, 0, 0);
  connect(chart_, &ActivityChart::ChoiceMade, this, &CaloricNeedsPage::UpdateBMRSummary);
  SetToolFields();
  ClearBMRResults();
}

void CaloricNeedsPage::AddInputs(QLayout *layout) {
  QHBoxLayout *person = AddRow(layout);
  AddLabel(person, {}, QStringLiteral("Gender:"));
  pnlBMRGender = AddLabel(person, QStringLiteral("pnlBMRGender"), {});
  person->addSpacing(spacing::apart);
  AddLabel(person, {}, QStringLiteral("Height:"));
  pnlBMRHeight = AddLabel(person, QStringLiteral("pnlBMRHeight"), {});
  person->addStretch();

  QHBoxLayout *weight = AddRow(layout);
  optBMRCurrentWeight =
      AddOption(weight, QStringLiteral("optBMRCurrentWeight"), QStringLiteral("Use My Current Weight"));
  weight->addSpacing(spacing::between);
  optBMRGoalWeight = AddOption(weight, QStringLiteral("optBMRGoalWeight"), QStringLiteral("Use My Goal Weight:"));
  txtBMRGoal = AddNumber(weight, QStringLiteral("txtBMRGoal"), QStringLiteral("Goal Weight"), session_.locale);
  pnlBMRUOM = AddLabel(weight, QStringLiteral("pnlBMRUOM"), session_.UomDisplay);
  weight->addStretch();

  QHBoxLayout *age = AddRow(layout);
  optBMRCurrentAge = AddOption(age, QStringLiteral("optBMRCurrentAge"), QStringLiteral("Use My Current Age"));
  age->addSpacing(spacing::between);
  optBMROtherAge = AddOption(age, QStringLiteral("optBMROtherAge"), QStringLiteral("Use Another Age:"));
  txtBMRAge = AddNumber(age, QStringLiteral("txtBMRAge"), QStringLiteral("Age"), session_.locale);
  age->addStretch();
  QPushButton *calculate = AddCommand(age, QStringLiteral("cmdBMRCalculate"), QStringLiteral("Calculate Now"));
  connect(calculate, &QPushButton::clicked, this, &CaloricNeedsPage::Calculate);

  GroupOptions(this, {optBMRCurrentWeight, optBMRGoalWeight});
  GroupOptions(this, {optBMRCurrentAge, optBMROtherAge});
  optBMRCurrentWeight->setChecked(true);
  optBMRCurrentAge->setChecked(true);
  for (const QRadioButton *option : {optBMRCurrentWeight, optBMRGoalWeight, optBMRCurrentAge, optBMROtherAge}) {
    connect(option, &QRadioButton::toggled, this, &CaloricNeedsPage::StartOver);
    connect(option, &QRadioButton::clicked, this, &CaloricNeedsPage::StartOver);  // also the one that is chosen already
  }
  connect(txtBMRAge, &QLineEdit::textChanged, this, &CaloricNeedsPage::ClearBMRResults);
  connect(txtBMRGoal, &QLineEdit::textChanged, this, &CaloricNeedsPage::ClearBMRResults);
  txtBMRGoal->installEventFilter(this);
}

void CaloricNeedsPage::AddResults(QLayout *layout) {
  pnlBMRResults1 = AddLabel(layout, QStringLiteral("pnlBMRResults1"), {});
  QHBoxLayout *basal = AddRow(layout);
  pnlBMRValue = new ResultText(QStringLiteral("pnlBMRValue"), this);
  MakeBold(pnlBMRValue);
  basal->addWidget(pnlBMRValue);
  pnlBMRResults2 =
      KeepPlaceWhenHidden(AddLabel(basal, QStringLiteral("pnlBMRResults2"), QStringLiteral("This is your BMR.")));
  basal->addStretch();
  pnlBMRResults3 =
      KeepPlaceWhenHidden(AddLabel(layout, QStringLiteral("pnlBMRResults3"),
                                   QStringLiteral("Now click on your activity level in the chart below.")));
}

void CaloricNeedsPage::FillFields() {
  txtBMRAge->setText(QString::number(AgeInYears(profile_.body.BirthDate, session_.Today())));
  txtBMRGoal->setText(profile_.Goal);
  SetToolFields();
  ClearBMRResults();
  UpdateBMRSummary();
}

void CaloricNeedsPage::ShowBMRTool() {
  pnlBMRGender->setText(GenderText(profile_.body.GenderID));
  pnlBMRHeight->setText(WholeHeightText(profile_.body, session_.settings.UomID, session_.locale));
  optBMRCurrentWeight->setText(CurrentWeightCaption(profile_, session_.UomDisplay, session_.locale));
  AlignOptions({optBMRCurrentWeight, optBMRCurrentAge});
  AlignOptions({optBMRGoalWeight, optBMROtherAge});
}

void CaloricNeedsPage::ClearBMRResults() {
  needs_ = {};
  pnlBMRResults1->setText(QStringLiteral("Click the <Calculate Now> button to see your results."));
  pnlBMRValue->clear();
  chart_->ShowAmounts(needs_.perDay);
  pnlBMRResults2->hide();
  pnlBMRResults3->hide();
  UpdateBMRSummary();
}

void CaloricNeedsPage::SetToolFields() {
  txtBMRGoal->setEnabled(optBMRGoalWeight->isChecked());
  pnlBMRUOM->setEnabled(optBMRGoalWeight->isChecked());
  txtBMRAge->setEnabled(optBMROtherAge->isChecked());
}

void CaloricNeedsPage::StartOver() {
  SetToolFields();
  ClearBMRResults();
}

void CaloricNeedsPage::Calculate() {
  if (txtBMRAge->text().isEmpty()) return;
  const FailureExit failure{QStringLiteral("frmTools"), QStringLiteral("cmdBMRCalculate_Click"),
                            QStringLiteral("Unable to Calculate"),
                            QStringLiteral("Your caloric needs cannot be calculated.  "), true};
  Guarded(session_, failure, [this] {
    const CaloricQuestion question{optBMRGoalWeight->isChecked(), txtBMRGoal->text(), optBMROtherAge->isChecked(),
                                   txtBMRAge->text()};
    needs_ = EstimateCaloricNeeds(question, profile_, session_.settings.UomID, session_.Today(), session_.locale);
    pnlBMRResults1->setText(QStringLiteral("So, if you did nothing but lie awake in bed all day, you would burn"));
    pnlBMRValue->setText(needs_.bmr);
    chart_->ShowAmounts(needs_.perDay);
    pnlBMRResults2->show();
    pnlBMRResults3->show();
    UpdateBMRSummary();
  });
}

void CaloricNeedsPage::UpdateBMRSummary() {
  const int chosen = chart_->Chosen();
  pnlBMRSummary->setVisible(chosen >= 0);
  note_->setVisible(chosen < 0);
  pnlBMRSummary->setText(chosen < 0 ? QString() : SummarizeCaloricNeeds(needs_, chosen, optBMRGoalWeight->isChecked()));
}

bool CaloricNeedsPage::eventFilter(QObject *watched, QEvent *event) {
  if (watched == txtBMRGoal && IsFieldEntered(*event)) ClearBMRResults();
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
