#include "companions/windows/frmWizard.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStackedWidget>

#include "companions/windows/colors_page.h"
#include "companions/windows/introduction_page.h"
#include "companions/windows/nutrients_page.h"
#include "companions/windows/profile_page.h"
#include "companions/windows/weight_page.h"
#include "companions/windows/wizard_banner.h"
#include "core/profiles/colour_scheme.h"
#include "core/profiles/profiles.h"
#include "core/session/failure_guard.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

QString ProfileSentence(WizardMode mode) {
  return mode == WizardMode::AddingProfile
             ? QStringLiteral("Who is the new profile for?")
             : QStringLiteral("Your height, age and gender let the program work out how many calories you need.");
}

QFrame *MakeLine(QWidget *parent) {
  auto *line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

}  // namespace

frmWizard::frmWizard(Session &session, const Navigator &navigator, WizardMode mode, QWidget *owner)
    : QDialog(owner), session_(session), navigator_(navigator), plan_(mode, !ShowsFewColours(session)) {
  setObjectName(QStringLiteral("frmWizard"));
  setWindowTitle(QStringLiteral("Trimlog Pro Configuration Wizard"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(true);
}

bool frmWizard::Form_Load() {
  const FailureExit failure{QStringLiteral("frmWizard"), QStringLiteral("Form_Load"), windowTitle(),
                            QStringLiteral("An error occurred while loading the configuration wizard.")};
  return Guarded(session_, failure, [this] {
    start_ = StartingAnswers(session_, plan_.Mode());
    answers_ = start_.answers;
    auto *columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(MakeBanner());
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(spacing::roomy, spacing::apart, spacing::roomy, spacing::apart);
    columns->addLayout(layout, 1);
    lblTitle = AddHeading(layout, QStringLiteral("lblTitle"), {});
    layout->addWidget(MakeLine(this));
    pages_ = new QStackedWidget(this);
    layout->addWidget(pages_, 1);
    layout->addWidget(MakeLine(this));
    AddPages();
    WatchAnswers();
    AddButtons(layout);
    ShowStep(1);
    FitToScreen();
  });
}

QWidget *frmWizard::MakeBanner() {
  QStringList steps;
  for (int step = 1; step <= plan_.WizardSteps(); ++step) steps.append(plan_.NameOf(step));
  banner_ = new WizardBanner(steps, this);
  PaintPanel(banner_, answers_.person.BackColor);
  return banner_;
}

QPushButton *frmWizard::AddButton(QLayout *row, const char *name, const QString &caption,
                                  void (frmWizard::*pressed)()) {
  QPushButton *button = AddCommand(row, QString::fromLatin1(name), caption);
  connect(button, &QPushButton::clicked, this, pressed);
  return button;
}

void frmWizard::AddButtons(QVBoxLayout *layout) {
  auto *row = new QHBoxLayout;
  layout->addLayout(row);
  if (plan_.IsFirstRun()) {
    cmdSkip = AddButton(row, "cmdSkip", QStringLiteral("&Skip Wizard"), &frmWizard::Skip);
    cmdImport = AddButton(row, "cmdImport", QStringLiteral("&Import Data"), &frmWizard::Import);
    cmdImport->setToolTip(QStringLiteral("Takes over the data of an earlier release."));
    NeedsDoor(*cmdImport, navigator_.ImportData);
  }
  row->addStretch();
  cmdBack = AddButton(row, "cmdBack", QStringLiteral("&Back"), &frmWizard::WizardBack);
  cmdNext = AddButton(row, "cmdNext", plan_.NextCaption(1), &frmWizard::WizardNext);
  cmdNext->setDefault(true);
  if (!plan_.IsFirstRun()) AddButton(row, "cmdCancel", QStringLiteral("Cancel"), &frmWizard::reject);
  QWidget::setTabOrder(cmdNext, cmdBack);
  if (cmdSkip) QWidget::setTabOrder(cmdBack, cmdSkip);
  if (cmdImport) QWidget::setTabOrder(cmdSkip, cmdImport);
}

WizardPage *frmWizard::MakePage(WizardStep step) {
  switch (step) {
    case WizardStep::Introduction:
      return new IntroductionPage(plan_.StepAt(plan_.WizardSteps()) == WizardStep::Colors, pages_);
    case WizardStep::Profile:
      return new ProfilePage(session_, plan_.IsFirstRun(), ProfileSentence(plan_.Mode()), answers_, pages_);
    case WizardStep::WeightAndDiet:
      return new WeightPage(session_, plan_.IsFirstRun(), start_, pages_);
    case WizardStep::Nutrients:
      return new NutrientsPage(session_, pages_);
    case WizardStep::Colors:
      break;
  }
  auto *colors = new ColorsPage(answers_.person.BackColor, pages_);
  connect(colors, &ColorsPage::ColorChosen, banner_, [this](quint32 colour) { PaintPanel(banner_, colour); });
  return colors;
}

void frmWizard::AddPages() {
  for (int step = 1; step <= plan_.WizardSteps(); ++step) pages_->addWidget(MakePage(plan_.StepAt(step)));
}

WizardPage *frmWizard::CurrentPage() const { return static_cast<WizardPage *>(pages_->currentWidget()); }

void frmWizard::WatchAnswers() {
  const auto answered = [this] { answered_ = true; };
  for (const QLineEdit *field : pages_->findChildren<QLineEdit *>()) {
    connect(field, &QLineEdit::textEdited, this, answered);
  }
  for (const QComboBox *list : pages_->findChildren<QComboBox *>())
    connect(list, &QComboBox::activated, this, answered);
  for (const QRadioButton *option : pages_->findChildren<QRadioButton *>()) {
    connect(option, &QRadioButton::clicked, this, answered);
  }
}

bool frmWizard::MayThrowAnswersAway() {
  return !answered_ ||
         session_.boxes.Ask(
             windowTitle(),
             QStringLiteral("What you have entered so far will be lost.  Do you want to leave the wizard?"),
             BoxButton::No);
}

void frmWizard::reject() {
  if (MayThrowAnswersAway()) QDialog::reject();
}

void frmWizard::WizardNext() {
  CurrentPage()->Store(answers_);
  if (!CurrentPage()->Check(answers_)) return;
  if (WizardStep_ == plan_.WizardSteps()) {
    Finish();
  } else {
    ShowStep(WizardStep_ + 1);
  }
}

void frmWizard::WizardBack() { ShowStep(WizardStep_ - 1); }

void frmWizard::ShowStep(int number) {
  const FailureExit failure{
      QStringLiteral("basWizard"), QStringLiteral("WizardNext"), {}, QStringLiteral("Internal Wizard Error")};
  Guarded(session_, failure, [this, number] {
    lblTitle->setText(plan_.TitleOf(number));
    cmdNext->setText(plan_.NextCaption(number));
    WizardStep_ = number;
    cmdBack->setEnabled(number > 1);
    if (cmdImport) cmdImport->setVisible(number == 1);
    banner_->ShowStep(number);
    auto *page = static_cast<WizardPage *>(pages_->widget(number - 1));
    page->setAccessibleName(lblTitle->text());  // told when the focus comes into the page
    page->Enter(answers_);
    pages_->setCurrentWidget(page);
    FocusFirstField();
  });
}

// Large enough for the longest title and the ten nutrients of a diet, as far as the screen allows; no step then moves
// the buttons.
void frmWizard::FitToScreen() {
  const QFontMetrics metrics(lblTitle->font());
  int width = 0;
  for (int step = 1; step <= plan_.WizardSteps(); ++step) {
    width = std::max(width, metrics.horizontalAdvance(plan_.TitleOf(step)));
  }
  pages_->setMinimumWidth(width);
  const QSize room = screen()->availableSize() - QSize(16, 48);
  const int height = fontMetrics().height() * (plan_.IsFirstRun() ? 32 : 24);
  resize(sizeHint().expandedTo({0, height}).boundedTo(room));
}

void frmWizard::FocusFirstField() {
  QWidget *first = CurrentPage()->FirstField();
  if (!first) first = cmdNext;
  first->setFocus(Qt::TabFocusReason);
  if (auto *field = qobject_cast<QLineEdit *>(first)) field->selectAll();
}

void frmWizard::LeaveAs(Outcome outcome) {
  outcome_ = outcome;
  done(outcome == Outcome::Finished ? Accepted : Rejected);
}

void frmWizard::Skip() {
  if (!MayThrowAnswersAway()) return;
  session_.boxes.Inform(
      QStringLiteral("Skipping the Configuration Wizard..."),
      QStringLiteral(
          "A sample profile will now be loaded, which will help you get familiar with Trimlog Pro and all of "
          "the program's features.  This wizard will reappear the next time you start the program."));
  LeaveAs(Outcome::Skipped);
}

void frmWizard::Import() {
  if (MayThrowAnswersAway()) LeaveAs(Outcome::Importing);
}

void frmWizard::Finish() {
  const FailureExit failure{QStringLiteral("frmWizard"), QStringLiteral("cmdNext_Click"),
                            QStringLiteral("Error Saving Profile"),
                            QStringLiteral("An error occurred while saving your profile.  Nothing was saved.  "), true};
  const bool saved = Guarded(
      session_, failure, [this] { session_.profile.CurrentPersonID = FinishWizard(session_, answers_, plan_.Mode()); });
  if (saved) LeaveAs(Outcome::Finished);
}

bool StartWiz(Session &session, const Navigator &navigator, bool force, QWidget *owner) {
  frmWizard::Outcome outcome = frmWizard::Outcome::Left;
  const FailureExit failure{QStringLiteral("basWizard"),
                            QStringLiteral("StartWiz"),
                            {},
                            QStringLiteral("An error occurred while trying to start the configuration wizard.")};
  Guarded(session, failure, [&] {
    if (!force && !NeedsWizard(session)) return;
    frmWizard wizard(session, navigator, WizardModeNow(session), owner);
    if (!wizard.Form_Load()) return;
    wizard.exec();
    outcome = wizard.HowLeft();
  });
  if (outcome == frmWizard::Outcome::Skipped && navigator.LoadData) navigator.LoadData(sampleProfile1);
  if (outcome == frmWizard::Outcome::Importing) navigator.ImportData(owner);
  return outcome == frmWizard::Outcome::Finished;
}

}  // namespace trimlog
