#include "tools/windows/body_fat_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/session/failure_guard.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/result_text.h"
#include "platform/windows/fields/number_field.h"
#include "tools/body_fat.h"
#include "tools/windows/body_fat_bar.h"
#include "tools/windows/tool_colours.h"

namespace trimlog {

namespace {

constexpr int linesOfAssessment = 7;

}  // namespace

BodyFatPage::BodyFatPage(Session &session, const ToolsProfile &profile, QWidget *parent)
    : QWidget(parent), session_(session), profile_(profile) {
  setObjectName(QStringLiteral("pnlBodyFat"));
  GreyDisabledLabels(this);
  auto *layout = new QVBoxLayout(this);
  AddHeading(layout, QStringLiteral("lblBodyFatTitle"), QStringLiteral("Estimating Your Percentage of Body Fat"));
  AddInputs(layout);
  pnlBodyFatChart = new BodyFatBar(session_, this);
  QSizePolicy policy = pnlBodyFatChart->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  pnlBodyFatChart->setSizePolicy(policy);
  pnlBodyFatChart->hide();
  pnlBodyFatSummary = new ResultText(QStringLiteral("pnlBodyFatSummary"), this);
  pnlBodyFatSummary->MakeFrame(linesOfAssessment);
  pnlBodyFatSummary->SetHint(QStringLiteral("Click the <Calculate Now> button to see your results."));
  results_ = new QGridLayout;
  layout->addLayout(results_, 1);
  results_->addWidget(pnlBodyFatChart, 0, 0);
  results_->addWidget(pnlBodyFatSummary, 0, 0, 2, 1);  // takes the bar's place until there is one
  results_->setRowStretch(1, 1);
  SetToolFields();
}

void BodyFatPage::AddInputs(QLayout *layout) {
  QHBoxLayout *person = AddRow(layout);
  AddLabel(person, {}, QStringLiteral("Gender:"));
  pnlBodyFatGender = AddLabel(person, QStringLiteral("pnlBodyFatGender"), {});
  person->addStretch();

  optBodyFatCurrentWeight =
      AddOption(layout, QStringLiteral("optBodyFatCurrentWeight"), QStringLiteral("Use My Current Weight"));
  QHBoxLayout *weight = AddRow(layout);
  optBodyFatGoalWeight =
      AddOption(weight, QStringLiteral("optBodyFatGoalWeight"), QStringLiteral("Use My Goal Weight:"));
  txtBodyFatGoal = AddNumber(weight, QStringLiteral("txtBodyFatGoal"), QStringLiteral("Goal Weight"), session_.locale);
  lblBodyFatUOM = AddLabel(weight, QStringLiteral("lblBodyFatUOM"), session_.UomDisplay);
  weight->addStretch();

  optBodyFatCurrentWaist =
      AddOption(layout, QStringLiteral("optBodyFatCurrentWaist"), QStringLiteral("Use My Most Recent Measurement"));
  QHBoxLayout *waist = AddRow(layout);
  optBodyFatOtherWaist =
      AddOption(waist, QStringLiteral("optBodyFatOtherWaist"), QStringLiteral("Use Another Measurement:"));
  txtBodyFatWaist = AddNumber(waist, QStringLiteral("txtBodyFatWaist"), QStringLiteral("Waist"), session_.locale);
  lblBodyFatUOMInches = AddLabel(waist, QStringLiteral("lblBodyFatUOMInches"), LengthUnitText(session_.settings.UomID));
  waist->addStretch();
  cmdBodyFatCalculate = AddCommand(waist, QStringLiteral("cmdBodyFatCalculate"), QStringLiteral("Calculate Now"));
  connect(cmdBodyFatCalculate, &QPushButton::clicked, this, &BodyFatPage::Calculate);

  AlignOptions({optBodyFatGoalWeight, optBodyFatOtherWaist});
  GroupOptions(this, {optBodyFatCurrentWeight, optBodyFatGoalWeight});
  GroupOptions(this, {optBodyFatCurrentWaist, optBodyFatOtherWaist});
  optBodyFatCurrentWeight->setChecked(true);
  optBodyFatCurrentWaist->setChecked(true);
  for (const QRadioButton *option :
       {optBodyFatCurrentWeight, optBodyFatGoalWeight, optBodyFatCurrentWaist, optBodyFatOtherWaist}) {
    connect(option, &QRadioButton::toggled, this, &BodyFatPage::StartOver);
    connect(option, &QRadioButton::clicked, this, &BodyFatPage::StartOver);  // also the one that is chosen already
  }
  connect(txtBodyFatGoal, &QLineEdit::textChanged, this, &BodyFatPage::StartOver);
  connect(txtBodyFatWaist, &QLineEdit::textChanged, this, &BodyFatPage::StartOver);
}

void BodyFatPage::FillFields() {
  txtBodyFatGoal->setText(profile_.Goal);
  if (!profile_.LatestWaist) optBodyFatOtherWaist->setChecked(true);  // what was never measured can only be typed
  SetToolFields();
}

void BodyFatPage::ShowBodyFatTool() {
  pnlBodyFatGender->setText(GenderText(profile_.body.GenderID));
  optBodyFatCurrentWeight->setText(CurrentWeightCaption(profile_, session_.UomDisplay, session_.locale));
  optBodyFatCurrentWaist->setText(CurrentWaistCaption(profile_, session_.settings.UomID, session_.locale));
  if (profile_.LatestWaist && txtBodyFatWaist->text().isEmpty()) {
    txtBodyFatWaist->setText(NumberText(*profile_.LatestWaist, session_.locale));
  }
  ClearBodyFatSummary();
}

void BodyFatPage::FocusFirst() {
  if (profile_.LatestWaist) {
    cmdBodyFatCalculate->setFocus();
  } else if (optBodyFatOtherWaist->isChecked()) {
    txtBodyFatWaist->setFocus();
  }
}

void BodyFatPage::SetToolFields() {
  txtBodyFatGoal->setEnabled(optBodyFatGoalWeight->isChecked());
  lblBodyFatUOM->setEnabled(optBodyFatGoalWeight->isChecked());
  txtBodyFatWaist->setEnabled(optBodyFatOtherWaist->isChecked());
  lblBodyFatUOMInches->setEnabled(optBodyFatOtherWaist->isChecked());
}

void BodyFatPage::ClearBodyFatSummary() {
  if (pnlBodyFatSummary) pnlBodyFatSummary->clear();
}

void BodyFatPage::StartOver() {
  SetToolFields();
  ClearBodyFatSummary();
}

void BodyFatPage::Calculate() {
  const FailureExit failure{QStringLiteral("frmTools"), QStringLiteral("cmdBodyFatCalculate_Click"),
                            QStringLiteral("Unable to Calculate"),
                            QStringLiteral("Your body fat cannot be calculated.  "), true};
  Guarded(session_, failure, [this] {
    const BodyFatQuestion question{optBodyFatGoalWeight->isChecked(), txtBodyFatGoal->text(),
                                   optBodyFatOtherWaist->isChecked(), txtBodyFatWaist->text()};
    const BodyFatAssessment assessment =
        AssessBodyFat(question, profile_, session_.settings.UomID, session_.UomDisplay, session_.locale);
    pnlBodyFatChart->ShowAssessment(assessment);
    pnlBodyFatChart->show();
    results_->addWidget(pnlBodyFatSummary, 1, 0);
    pnlBodyFatSummary->setText(assessment.summary);
  });
}

}  // namespace trimlog
