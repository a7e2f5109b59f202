#include "companions/windows/weight_page.h"

#include <QAbstractButton>
#include <QGridLayout>

#include "companions/wizard_nutrients.h"
#include "core/profiles/goal.h"
#include "core/settings/options.h"
#include "core/windows/controls/choice_combo.h"
#include "core/windows/controls/show_calendar.h"
#include "platform/windows/controls/form_rows.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "weightlog/weight_log.h"

namespace trimlog {

namespace {

constexpr int digitsOfWeight = 8;
constexpr int digitsOfStartingDate = 12;

}  // namespace

WeightPage::WeightPage(Session &session, bool asksForDiet, const WizardStart &start, QWidget *parent)
    : WizardPage(parent), session_(session), answers_(start.answers) {
  QGridLayout *grid = MakeForm(asksForDiet ? QStringLiteral("Where do you start, where do you want to go, and how do "
                                                            "you want to eat on the way?")
                                           : QStringLiteral("Where do you start, and where do you want to go?"));
  AddWeights(grid);
  AddStartingDate(grid);
  if (asksForDiet) AddDiet(grid);
  Fill(start);
}

void WeightPage::AddWeights(QGridLayout *grid) {
  const auto mend = [this](const QString &text) { return RepairedNumber(text, session_.locale); };
  txtStartingWeight = new NumberField(QStringLiteral("txtStartingWeight"), {}, session_.locale, this);
  txtStartingWeight->setFixedWidth(FieldWidth(txtStartingWeight, digitsOfWeight));
  lblStartingWeightUom = MakeLabel(QStringLiteral("lblStartingWeightUom"), {});
  AddFormRow(grid, QStringLiteral("Starting &weight:"), txtStartingWeight, {txtStartingWeight, lblStartingWeightUom});
  MendOnLeaving(txtStartingWeight, mend);

  txtGoal = new NumberField(QStringLiteral("txtGoal"), {}, session_.locale, this);
  txtGoal->setFixedWidth(FieldWidth(txtGoal, digitsOfWeight));
  lblGoalUom = MakeLabel(QStringLiteral("lblGoalUom"), {});
  auto *cmdTellMe = new QPushButton(QStringLiteral("&Tell Me..."), this);
  cmdTellMe->setObjectName(QStringLiteral("cmdTellMe"));
  cmdTellMe->setAutoDefault(false);
  cmdTellMe->setToolTip(QStringLiteral("Tells you a healthy weight for your height."));
  AddFormRow(grid, QStringLiteral("Your &goal:"), txtGoal, {txtGoal, lblGoalUom, cmdTellMe});
  MendOnLeaving(txtGoal, mend);
  connect(cmdTellMe, &QPushButton::clicked, this, &WeightPage::TellHealthyWeight);
}

void WeightPage::AddStartingDate(QGridLayout *grid) {
  txtStartingDate =
      new DateField(QStringLiteral("txtStartingDate"), QStringLiteral("Starting date"), session_.locale, this);
  txtStartingDate->setFixedWidth(FieldWidth(txtStartingDate, digitsOfStartingDate));
  cmdCalendar = AttachCalendar(session_, *txtStartingDate, QStringLiteral("cmdCalendar"));
  AddFormRow(grid, QStringLiteral("Starting &date:"), txtStartingDate, {txtStartingDate, cmdCalendar});
  MendOnLeaving(txtStartingDate,
                [this](const QString &text) { return RepairedStartingDate(text, session_.Today(), session_.locale); });
}

void WeightPage::AddDiet(QGridLayout *grid) {
  cboDiet = new QComboBox(this);
  cboDiet->setObjectName(QStringLiteral("cboDiet"));
  cboDiet->setAccessibleName(QStringLiteral("Diet plan"));
  for (const DietPlan &plan : DietPlans()) cboDiet->addItem(plan.name, plan.key);
  cboDiet->setCurrentIndex(cboDiet->findData(answers_.diet));
  AddFormRow(grid, QStringLiteral("Diet &plan:"), cboDiet, {cboDiet});

  cboNutrientID = new ChoiceCombo(QStringLiteral("cboNutrientID"), QStringLiteral("Most important nutrient"), this);
  cboNutrientID->SetChoices(WizardNutrientChoices(session_));
  cboNutrientID->SetValue(answers_.nutrientID);
  cboNutrientID->setToolTip(QStringLiteral("Which single nutrient is most important to your diet?"));
  lblNutrientID = AddFormRow(grid, QStringLiteral("&Most important nutrient:"), cboNutrientID, {cboNutrientID});
  connect(cboDiet, &QComboBox::currentIndexChanged, this, &WeightPage::FollowDiet);
  FollowDiet();
}

void WeightPage::Fill(const WizardStart &start) {
  txtStartingDate->SetDate(start.answers.startingDate);
  txtGoal->setText(GoalToShow(GoalToStore(start.answers.person.Goal), session_.locale));
  if (!start.hasWeights) return;
  txtStartingWeight->setText(WeightText(start.answers.startingWeight, session_.locale));
  for (QWidget *control :
       {static_cast<QWidget *>(txtStartingWeight), static_cast<QWidget *>(txtStartingDate), cmdCalendar}) {
    control->setEnabled(false);
    control->setToolTip(QStringLiteral("Your first weight stands in the Data Calendar and can be changed there."));
  }
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

QWidget *WeightPage::FirstField() const { return txtStartingWeight->isEnabled() ? txtStartingWeight : txtGoal; }

void WeightPage::Store(WizardAnswers &answers) {
  MendFields();
  answers.startingWeight = txtStartingWeight->ValueOrZero();
  answers.startingDate = txtStartingDate->Date();
  answers.person.Goal = txtGoal->ValueOrZero();
  if (!cboDiet) return;
  answers.diet = cboDiet->currentData().toString();
  answers.nutrientID = cboNutrientID->ChosenValue();
}

bool WeightPage::Check(const WizardAnswers &answers) {
  if (const auto complaint = CheckWeightAnswers(answers)) {
    session_.boxes.Critical(complaint->title, complaint->text);
    GoTo(complaint->field == WeightStepField::Goal ? txtGoal : txtStartingWeight);
    return false;
  }
  if (ConfirmGoal(session_, txtGoal->text())) return true;
  GoTo(txtGoal);
  return false;
}

}  // namespace trimlog
