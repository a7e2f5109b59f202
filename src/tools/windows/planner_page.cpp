#include "tools/windows/planner_page.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/session/failure_guard.h"
#include "core/windows/controls/show_calendar.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/leave_check.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/result_text.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/number_field.h"
#include "tools/goal_plan.h"
#include "tools/windows/tool_colours.h"

namespace trimlog {

PlannerPage::PlannerPage(Session &session, const ToolsProfile &profile, QWidget *parent)
    : QWidget(parent), session_(session), profile_(profile) {
  setObjectName(QStringLiteral("pnlPlanner"));
  auto *layout = new QVBoxLayout(this);
  AddHeading(layout, QStringLiteral("lblPlannerTitle"), QStringLiteral("Plan for Success!"));
  AddNote(layout, QStringLiteral("lblPlannerIntro"),
          QStringLiteral(
              "Here you can experiment with different scenarios and see what you need to do to achieve success."));
  AddGoalStep(layout);
  QHBoxLayout *beside = AddRow(layout);
  AddMethodStep(beside);
  AddStartStep(beside);
  AddResultStep(layout);
  AddNote(
      layout, QStringLiteral("Label5"),
      QStringLiteral("Please Note: The projections here are not related to the projections found above your calendar.  "
                     "Those statistics are based on your actual weight lost and will change as you enter your weight "
                     "each day."));
  layout->addStretch();
  HighlightStep(GoalStep);
  ShowPrompt();
  ConnectPrompts();
}

namespace {

constexpr int linesOfPlan = 5;

/// Holds what the profile has stored; nobody sees it.
QLabel *AddCarrier(QWidget *panel, const QString &name) {
  auto *carrier = new QLabel(panel);
  carrier->setObjectName(name);
  carrier->setTextFormat(Qt::PlainText);
  carrier->hide();
  return carrier;
}

}  // namespace

QFrame *PlannerPage::AddStep(QLayout *layout, const QString &name, const QString &caption) {
  auto *panel = new QFrame(this);
  panel->setObjectName(name);
  panel->setFrameShape(QFrame::StyledPanel);
  layout->addWidget(panel);
  auto *rows = new QVBoxLayout(panel);
  MakeBold(AddLabel(rows, {}, caption));
  return panel;
}

void PlannerPage::AddGoalStep(QLayout *layout) {
  QFrame *panel = stepPanels_[0] = AddStep(layout, QStringLiteral("pnlStep1"), QStringLiteral("Step 1: Your Goal"));
  QHBoxLayout *row = AddRow(panel->layout());
  QLabel *question = AddLabel(row, QStringLiteral("Label1"), QStringLiteral("What is your desired goal weight?"));
  txtGoal = AddNumber(row, QStringLiteral("txtGoal"), question->text(), session_.locale);
  question->setBuddy(txtGoal);
  txtGoal1 = AddCarrier(panel, QStringLiteral("txtGoal1"));
  lblGoalUOM = AddLabel(row, QStringLiteral("lblGoalUOM"), session_.UomDisplay);
  row->addStretch();
  checks_[0] = new LeaveCheck(txtGoal, session_.boxes,
                              [&session = session_](const QString &text) { return CheckGoal(text, session.locale); });
  txtGoal->installEventFilter(this);
}

void PlannerPage::AddMethodStep(QLayout *layout) {
  QFrame *panel = stepPanels_[1] =
      AddStep(layout, QStringLiteral("pnlStep2"), QStringLiteral("Step 2: Preferred Method"));
  AddLabel(panel->layout(), QStringLiteral("Label3"), QStringLiteral("How do you want to achieve this goal?"));
  const QString perWeek = session_.UomDisplay.toLower() + QStringLiteral("/week");

  QHBoxLayout *rateRow = AddRow(panel->layout());
  optGoalLbs = AddOption(rateRow, QStringLiteral("optGoalLbs"), QStringLiteral("By Losing"));
  txtGoalMethodLbsWeek = AddNumber(rateRow, QStringLiteral("txtGoalMethodLbsWeek"), perWeek, session_.locale);
  lblGoalMethodLbsWeek2 = AddLabel(rateRow, QStringLiteral("lblGoalMethodLbsWeek2"), perWeek);
  lblGoalMethodLbsWeek2->setBuddy(txtGoalMethodLbsWeek);
  rateRow->addStretch();
  checks_[1] = new LeaveCheck(txtGoalMethodLbsWeek, session_.boxes, [&session = session_](const QString &text) {
    return CheckGoalMethodRate(text, session.locale);
  });

  QHBoxLayout *dateRow = AddRow(panel->layout());
  optGoalDate = AddOption(dateRow, QStringLiteral("optGoalDate"), QStringLiteral("By This Date"));
  lblGoalMethodDate = AddLabel(dateRow, QStringLiteral("lblGoalMethodDate"), QStringLiteral("Date:"));
  txtGoalMethodDate = new DateField(QStringLiteral("txtGoalMethodDate"), optGoalDate->text(), session_.locale, panel);
  txtGoalMethodDate->setMaximumWidth(FieldWidth(txtGoalMethodDate, 14));
  dateRow->addWidget(txtGoalMethodDate);
  lblGoalMethodDate->setBuddy(txtGoalMethodDate);
  cmdCalendar = AttachCalendar(session_, *txtGoalMethodDate, QStringLiteral("cmdCalendar"));
  dateRow->addWidget(cmdCalendar);
  dateRow->addStretch();
  checks_[2] = new LeaveCheck(txtGoalMethodDate, session_.boxes, [&session = session_](const QString &text) {
    return CheckGoalMethodDate(text, session.locale);
  });
  txtGoalMethod = AddCarrier(panel, QStringLiteral("txtGoalMethod"));
  GroupOptions(panel, {optGoalLbs, optGoalDate});
  AlignOptions({optGoalLbs, optGoalDate});
  optGoalDate->setChecked(true);
}

void PlannerPage::AddStartStep(QLayout *layout) {
  QFrame *panel = stepPanels_[2] =
      AddStep(layout, QStringLiteral("Picture1"), QStringLiteral("Step 3: Your Starting Point"));
  optInitialWeight =
      AddOption(panel->layout(), QStringLiteral("optInitialWeight"), QStringLiteral("Use My Initial Weight"));
  optCurrentWeight =
      AddOption(panel->layout(), QStringLiteral("optCurrentWeight"), QStringLiteral("Use My Current Weight"));
  qobject_cast<QBoxLayout *>(panel->layout())->addStretch();
  GroupOptions(panel, {optInitialWeight, optCurrentWeight});
  optCurrentWeight->setChecked(true);
  ShowWeights();
}

void PlannerPage::AddResultStep(QLayout *layout) {
  QFrame *panel = stepPanels_[3] =
      AddStep(layout, QStringLiteral("pnlStep3"), QStringLiteral("Step 4: What You Need to do"));
  QHBoxLayout *row = AddRow(panel->layout());
  txtGoalConstraint = new ResultText(QStringLiteral("txtGoalConstraint"), panel);
  txtGoalConstraint->MakeFrame(linesOfPlan);
  row->addWidget(txtGoalConstraint);
  cmdCalculate = AddCommand(row, QStringLiteral("cmdCalculate"), QStringLiteral("C&alculate Plan"));
  row->setAlignment(cmdCalculate, Qt::AlignTop);
  connect(cmdCalculate, &QPushButton::clicked, this, &PlannerPage::Calculate);
}

void PlannerPage::ConnectPrompts() {
  for (QLineEdit *field : {static_cast<QLineEdit *>(txtGoal), static_cast<QLineEdit *>(txtGoalMethodLbsWeek),
                           static_cast<QLineEdit *>(txtGoalMethodDate)}) {
    connect(field, &QLineEdit::textChanged, this, &PlannerPage::ShowPrompt);
  }
  for (const QRadioButton *option : {optInitialWeight, optCurrentWeight, optGoalLbs, optGoalDate}) {
    connect(option, &QRadioButton::clicked, this, &PlannerPage::ShowPrompt);
  }
  for (const QRadioButton *option : {optGoalLbs, optGoalDate}) {
    connect(option, &QRadioButton::toggled, this, &PlannerPage::SetToolFields);
  }
  // A date from the calendar is calculated at once, and so is one that Enter ends; leaving the field is not.
  connect(txtGoalMethodDate, &QLineEdit::editingFinished, this, [this] {
    if (window()->focusWidget() == txtGoalMethodDate && txtGoalMethodDate->Date().isValid()) UpdateGoalText();
  });
  SetToolFields();
}

void PlannerPage::ShowWeights() {
  optInitialWeight->setText(InitialWeightCaption(profile_, session_.UomDisplay, session_.locale));
  optCurrentWeight->setText(CurrentWeightCaption(profile_, session_.UomDisplay, session_.locale));
  if (txtGoalConstraint) ShowPrompt();
}

void PlannerPage::ShowStoredPlan() {
  txtGoal1->setText(profile_.Goal);
  txtGoal->setText(txtGoal1->text());
  txtGoalMethodLbsWeek->setText(profile_.GoalMethodLbsWeek);
  txtGoalMethodDate->SetDate(profile_.GoalMethodDate);
  (profile_.method == GoalMethod::ByRate ? optGoalLbs : optGoalDate)->setChecked(true);
  UpdateGoalText();
  SetToolFields();
}

void PlannerPage::FocusGoal() {
  txtGoal->setFocus();
  txtGoal->selectAll();
}

void PlannerPage::StorePlan() {
  // An open edit that was refused never reaches the profile: a rate is repaired, a date goes back to the stored one.
  const bool dateRefused = !txtGoalMethodDate->text().isEmpty() && !txtGoalMethodDate->Date().isValid();
  const QString rate = txtGoalMethodLbsWeek->text();
  SaveGoalMethod(
      session_, Method(), dateRefused ? profile_.GoalMethodDate : txtGoalMethodDate->Date(),
      txtGoalMethodLbsWeek->isModified() ? RepairedRate(rate, session_.settings.UomID, session_.locale) : rate);
}

GoalMethod PlannerPage::Method() const { return optGoalLbs->isChecked() ? GoalMethod::ByRate : GoalMethod::ByDate; }

void PlannerPage::SetToolFields() {
  const bool byRate = Method() == GoalMethod::ByRate;
  txtGoalMethod->setText(QString::number(static_cast<int>(Method())));
  txtGoalMethodLbsWeek->setEnabled(byRate);
  lblGoalMethodLbsWeek2->setEnabled(byRate);
  txtGoalMethodDate->setEnabled(!byRate);
  cmdCalendar->setEnabled(!byRate);
  lblGoalMethodDate->setEnabled(!byRate);
}

void PlannerPage::HighlightStep(Step step) {
  if (highlighted_ == step) return;
  highlighted_ = step;
  const QColor accent = ColorFromBgr(session_.profile.BackColor);
  // On a dark desktop fields and options are drawn in the base colour and would vanish on it.
  const QColor plain = palette().color(IsDark(palette()) ? QPalette::Button : QPalette::Base);
  constexpr std::array<Step, 4> stepOfPanel = {GoalStep, MethodStep, MethodStep, ResultStep};
  for (size_t i = 0; i < stepPanels_.size(); ++i) {
    PaintToolPanel(stepPanels_[i], stepOfPanel[i] == step ? accent : plain);
  }
}

bool PlannerPage::FieldsAccepted() {
  return std::all_of(checks_.begin(), checks_.end(), [](LeaveCheck *check) { return check->Insist(); });
}

void PlannerPage::Calculate() {
  const bool usable =
      std::all_of(checks_.begin(), checks_.end(), [](LeaveCheck *check) { return check->InsistOnAny(); });
  if (usable) UpdateGoalText();
}

void PlannerPage::UpdateGoalText() {
  const QString module = QStringLiteral("frmPlan");
  const QString procedure = QStringLiteral("UpdateGoalText");
  const auto logMessage = [this](const QString &description) {
    const auto state = [](const QRadioButton *option) { return QString::fromLatin1(option->isChecked() ? "-1" : "0"); };
    return QStringLiteral("Values: 1:[") + txtGoal->text() + QStringLiteral("] 2a:[") + txtGoalMethodLbsWeek->text() +
           QStringLiteral("] 2b:[") + txtGoalMethodDate->text() + QStringLiteral("] 3a:[") + state(optInitialWeight) +
           QStringLiteral("] 3b:[") + state(optCurrentWeight) + QStringLiteral("] Error:") + description;
  };
  Guarded(session_, {module, procedure, {}, {}, false, logMessage}, [&] {
    HighlightStep(ResultStep);
    if (Method() == GoalMethod::ByDate && txtGoalMethodDate->text().isEmpty()) {
      txtGoalMethodDate->SetDate(session_.Today());
    }
    const GoalQuestion question{txtGoal->text(), Method(), txtGoalMethodLbsWeek->text(), txtGoalMethodDate->text(),
                                optInitialWeight->isChecked() ? profile_.initialWeight : profile_.currentWeight};
    const GoalPlan plan =
        PlanGoal(question, profile_.body, session_.settings.UomID, session_.UomDisplay, session_.locale);
    if (!plan.text.isEmpty()) ShowResult(plan.text, Qt::AlignLeft | Qt::AlignTop);
    if (!plan.failure.isEmpty()) LogError(session_, module, procedure, logMessage(plan.failure));
  });
}

void PlannerPage::ShowPrompt() { ShowResult(PlanPrompt(), Qt::AlignCenter); }

void PlannerPage::ShowResult(const QString &text, Qt::Alignment alignment) {
  txtGoalConstraint->setAlignment(alignment);
  txtGoalConstraint->setText(text);
}

void PlannerPage::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || highlighted_ == 0) return;
  const Step shown = static_cast<Step>(highlighted_);
  highlighted_ = 0;
  HighlightStep(shown);
}

bool PlannerPage::eventFilter(QObject *watched, QEvent *event) {
  if (watched == txtGoal && event->type() == QEvent::FocusIn) HighlightStep(GoalStep);
  return QWidget::eventFilter(watched, event);
}

}  // namespace trimlog
