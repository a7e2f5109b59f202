#include "companions/windows/weight_page.h"

#include <QAbstractButton>
#include <QGridLayout>

#include "companions/windows/wizard_controls.h"
#include "companions/wizard_nutrients.h"
#include "core/profiles/profile_list.h"
#include "core/settings/options.h"
#include "core/windows/controls/choice_combo.h"
#include "core/windows/controls/show_calendar.h"
#include "core/windows/setup/setup_controls.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"

namespace trimlog {

WeightPage::WeightPage(Session &session, bool addingProfile, QWidget *parent) : WizardPage(parent), session_(session) {
  QGridLayout *grid =
      MakeWizardForm(this, addingProfile ? QStringLiteral("Where do you start, and where do you want to go?")
                                         : QStringLiteral("Where do you start, where do you want to go, and how do "
                                                          "you want to eat on the way?"));
  AddWeights(grid);
  AddStartingDate(grid);
  if (!addingProfile) AddDiet(grid);
}

void WeightPage::AddWeights(QGridLayout *grid) {
  const auto mend = [this](const QString &text) { return RepairedNumber(text, session_.locale); };
  txtStartingWeight = AddWizardNumber(QStringLiteral("txtStartingWeight"), session_.locale, this);
  lblStartingWeightUom = AddWizardUnit(QStringLiteral("lblStartingWeightUom"), this);
  AddWizardRow(grid, QStringLiteral("Starting &weight:"), txtStartingWeight, {txtStartingWeight, lblStartingWeightUom});
  MendOnLeaving(txtStartingWeight, mend);

  txtGoal = AddWizardNumber(QStringLiteral("txtGoal"), session_.locale, this);
  lblGoalUom = AddWizardUnit(QStringLiteral("lblGoalUom"), this);
  auto *cmdTellMe = new QPushButton(QStringLiteral("&Tell Me..."), this);
  cmdTellMe->setObjectName(QStringLiteral("cmdTellMe"));
  cmdTellMe->setAutoDefault(false);
  cmdTellMe->setToolTip(QStringLiteral("Tells you a healthy weight for your height."));
  AddWizardRow(grid, QStringLiteral("Your &goal:"), txtGoal, {txtGoal, lblGoalUom, cmdTellMe});
  MendOnLeaving(txtGoal, mend);
  connect(cmdTellMe, &QPushButton::clicked, this, &WeightPage::TellHealthyWeight);
}

void WeightPage::AddStartingDate(QGridLayout *grid) {
  txtStartingDate =
      new DateField(QStringLiteral("txtStartingDate"), QStringLiteral("Starting date"), session_.locale, this);
  FitWizardField(txtStartingDate, dateCharacters);
  txtStartingDate->SetDate(session_.Today());
  AddWizardRow(grid, QStringLiteral("Starting &date:"), txtStartingDate,
               {txtStartingDate, AttachCalendar(session_, *txtStartingDate, QStringLiteral("cmdCalendar"))});
  MendOnLeaving(txtStartingDate,
                [this](const QString &text) { return RepairedStartingDate(text, session_.Today(), session_.locale); });
}

void WeightPage::AddDiet(QGridLayout *grid) {
  cboDiet = new QComboBox(this);
  cboDiet->setObjectName(QStringLiteral("cboDiet"));
  cboDiet->setAccessibleName(QStringLiteral("Diet plan"));
  for (const DietPlan &plan : DietPlans()) cboDiet->addItem(plan.name, plan.key);
  cboDiet->setCurrentIndex(cboDiet->findData(answers_.diet));
  AddWizardRow(grid, QStringLiteral("Diet &plan:"), cboDiet, {cboDiet});

  cboNutrientID = new ChoiceCombo(QStringLiteral("cboNutrientID"), QStringLiteral("Most important nutrient"), this);
  cboNutrientID->SetChoices(WizardNutrientChoices(session_));
  cboNutrientID->SetValue(answers_.nutrientID);
  cboNutrientID->setToolTip(QStringLiteral("Which single nutrient is most important to your diet?"));
  AddWizardRow(grid, QStringLiteral("&Most important nutrient:"), cboNutrientID, {cboNutrientID});
  lblNutrientID = qobject_cast<QLabel *>(grid->itemAtPosition(grid->rowCount() - 1, 0)->widget());
  connect(cboDiet, &QComboBox::currentIndexChanged, this, &WeightPage::FollowDiet);
  FollowDiet();
}

void WeightPage::FollowDiet() {
  const bool customized = cboDiet->currentData().toString() == DietPlans().last().key;
  cboNutrientID->setEnabled(customized);
  lblNutrientID->setEnabled(customized);
}

void WeightPage::TellHealthyWeight() {
  session_.boxes.Inform(QStringLiteral("Your Healthy Weight"), HealthyWeightText(answers_, session_.UomDisplay));
}

void WeightPage::Enter(const WizardAnswers &answers) {
  answers_ = answers;
  const QString unit = LabelsOf(answers.UomID).weight;
  lblStartingWeightUom->setText(unit);
  lblGoalUom->setText(unit);
  txtStartingWeight->setAccessibleName(QStringLiteral("Starting weight, ") + unit);
  txtGoal->setAccessibleName(QStringLiteral("Your goal, ") + unit);
}

QWidget *WeightPage::FirstField() const { return txtStartingWeight; }

void WeightPage::Store(WizardAnswers &answers) {
  MendFields();
  answers.startingWeight = txtStartingWeight->ValueOrZero();
  answers.startingDate = txtStartingDate->Date();
  answers.goal = txtGoal->ValueOrZero();
  if (!cboDiet) return;
  answers.diet = cboDiet->currentData().toString();
  answers.nutrientID = cboNutrientID->ChosenValue();
}

bool WeightPage::Check(const WizardAnswers &answers) {
  if (const auto complaint = CheckWeightAnswers(answers)) {
    session_.boxes.Critical(complaint->title, complaint->text);
    GoTo(complaint->field == WizardField::Goal ? txtGoal : txtStartingWeight);
    return false;
  }
  if (ConfirmGoal(session_, txtGoal->text())) return true;
  GoTo(txtGoal);
  return false;
}

}  // namespace trimlog
