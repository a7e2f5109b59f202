#include "tools/windows/frmTools.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/profiles/colour_scheme.h"
#include "core/session/failure_guard.h"
#include "core/session/print.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/theme.h"
#include "platform/windows/controls/named_controls.h"
#include "tools/tool_notices.h"
#include "tools/windows/body_fat_page.h"
#include "tools/windows/caloric_needs_page.h"
#include "tools/windows/frmMedicalDisclaimer.h"
#include "tools/windows/planner_page.h"
#include "tools/windows/tool_colours.h"

namespace trimlog {

namespace {

/// What cboTools offers, by key, with the help topic of each.
struct Tool {
  const char *caption;
  const char *helpTopic;
  const char *command;  ///< the button that Enter presses
};
constexpr std::array<Tool, 3> tools = {{
    {"Plan for My Weight Loss Goal", "35", "cmdCalculate"},
    {"Calculate My Daily Caloric Needs", "63", "cmdBMRCalculate"},
    {"Check My Body Fat Percentage", "65", "cmdBodyFatCalculate"},
}};
const QString startingWeightTopic = QStringLiteral("12");

/// A panel in the profile's colour along an edge of the window.
QWidget *AddAccentPanel(QLayout *layout, const QString &name, const Session &session) {
  auto *panel = new QWidget;
  panel->setObjectName(name);
  PaintToolPanel(panel, ColorFromBgr(session.profile.BackColor));
  layout->addWidget(panel);
  new QHBoxLayout(panel);
  return panel;
}

FailureExit Quiet(const char *procedure) { return {QStringLiteral("frmPlan"), QString::fromLatin1(procedure), {}, {}}; }

}  // namespace

frmTools::frmTools(Session &session, const Navigator &navigator, ToolsPanel panel, QWidget *parent)
    : QDialog(parent), session_(session), navigator_(navigator) {
  setObjectName(QStringLiteral("frmTools"));
  setWindowTitle(QStringLiteral("Tools and Calculators"));
  setModal(true);
  Guarded(session_, Quiet("Form_Load"), [this] { profile_ = ReadToolsProfile(session_); });
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  AddChoice(layout);
  AddPages(layout);
  AddButtons(layout);
  if (ShowsFewColours(session_)) {
    PaintToolPanel(this, Qt::white);
    for (QWidget *page : Pages()) PaintToolPanel(page, Qt::white);
  }
  cboTools->setCurrentIndex(static_cast<int>(panel));
  panels_->setCurrentIndex(static_cast<int>(panel));
  // Every panel shows its texts before the window is measured, and the window has its size before it finds its place.
  pnlBMR->ShowBMRTool();
  pnlBodyFat->ShowBodyFatTool();
  ensurePolished();
  FitToPanels();
  connect(cboTools, &QComboBox::currentIndexChanged, this, &frmTools::SelectTool);
  connect(&session_.changes, &DataChanges::Changed, this, &frmTools::FollowChange);
}

void frmTools::AddChoice(QLayout *layout) {
  QWidget *panel = AddAccentPanel(layout, QStringLiteral("pnlTools1"), session_);
  QLabel *label = AddLabel(panel->layout(), QStringLiteral("lblTools"), QStringLiteral("&What would you like to do?"));
  cboTools = new QComboBox(panel);
  cboTools->setObjectName(QStringLiteral("cboTools"));
  cboTools->setAccessibleName(QStringLiteral("What would you like to do?"));
  for (size_t key = 0; key < tools.size(); ++key) {
    cboTools->addItem(QString::fromLatin1(tools[key].caption), QString::number(key));
  }
  panel->layout()->addWidget(cboTools);
  label->setBuddy(cboTools);
  qobject_cast<QHBoxLayout *>(panel->layout())->addStretch();
}

void frmTools::AddPages(QLayout *layout) {
  // Scrolls only where the screen is smaller than the largest panel.
  auto *scroll = scroll_ = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  panels_ = new QStackedWidget(scroll);
  pnlPlanner = new PlannerPage(session_, profile_, panels_);
  pnlBMR = new CaloricNeedsPage(session_, profile_, panels_);
  pnlBodyFat = new BodyFatPage(session_, profile_, panels_);
  panels_->addWidget(pnlPlanner);
  panels_->addWidget(pnlBMR);
  panels_->addWidget(pnlBodyFat);
  scroll->setWidget(panels_);
  layout->addWidget(scroll);
}

std::array<QWidget *, 3> frmTools::Pages() const { return {pnlPlanner, pnlBMR, pnlBodyFat}; }

void frmTools::AddButtons(QLayout *layout) {
  QWidget *panel = AddAccentPanel(layout, QStringLiteral("pnlButtons"), session_);
  qobject_cast<QHBoxLayout *>(panel->layout())->addStretch();
  cmdPrint = AddCommand(panel->layout(), QStringLiteral("cmdPrint"), QStringLiteral("&Print"));
  cmdHelp = AddCommand(panel->layout(), QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
  cmdClose = AddCommand(panel->layout(), QStringLiteral("cmdClose"), QStringLiteral("&Close"));
  NeedsDoor(*cmdHelp, navigator_.ShowHelp);
  connect(cmdPrint, &QPushButton::clicked, this, &frmTools::PrintResults);
  connect(cmdHelp, &QPushButton::clicked, this,
          [this] { navigator_.ShowHelp(QString::fromLatin1(tools[cboTools->currentIndex()].helpTopic)); });
  connect(cmdClose, &QPushButton::clicked, this, [this] {
    if (pnlPlanner->FieldsAccepted()) close();
  });
}

int frmTools::PanelsHeight(int width) const {
  return std::max(panels_->minimumSizeHint().height(), panels_->heightForWidth(width));
}

void frmTools::FitToPanels() {
  // Captions may just have grown: their rows must know before they are asked.
  for (QWidget *page : Pages()) page->layout()->activate();
  // Room for the frame and title bar that the desktop puts around the window.
  const QSize room = screen()->availableSize() - QSize(16, 48);
  const int others = layout()->sizeHint().height() - scroll_->sizeHint().height();
  const int width = panels_->sizeHint().expandedTo(panels_->minimumSizeHint()).width();
  const int height = PanelsHeight(width);
  // A bar at the right must not make one at the bottom necessary.
  const bool scrolls = height + others > room.height();
  const int bar = scrolls ? style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) : 0;
  resize(QSize(width + bar, height + others).expandedTo(size()).boundedTo(room));
  ShowBarWhereNeeded();
  if (isVisible()) KeepOnScreen();
}

// A bar narrows the notes, which makes them higher: asked with the bar in place, it would keep itself necessary.
void frmTools::ShowBarWhereNeeded() {
  const bool fits = PanelsHeight(scroll_->width()) <= scroll_->height();
  scroll_->setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void frmTools::resizeEvent(QResizeEvent *event) {
  QDialog::resizeEvent(event);
  ShowBarWhereNeeded();
}

void frmTools::KeepOnScreen() {
  const QRect room = screen()->availableGeometry();
  const QRect frame = frameGeometry();
  const QPoint corner(std::max(room.left(), std::min(frame.left(), room.right() - frame.width() + 1)),
                      std::max(room.top(), std::min(frame.top(), room.bottom() - frame.height() + 1)));
  if (corner != frame.topLeft()) move(corner);
}

void frmTools::showEvent(QShowEvent *event) {
  QDialog::showEvent(event);
  if (activated_) return;
  activated_ = true;
  // Boxes come above the window that they belong to, so it has to be on the screen first.
  QMetaObject::invokeMethod(this, &frmTools::Activate, Qt::QueuedConnection);
}

void frmTools::Activate() {
  Guarded(session_, Quiet("Form_Activate"), [this] {
    if (GreetPerson() == Opened::Left) return;
    pnlPlanner->ShowStoredPlan();
    planShown_ = true;
    if (AskForMissingData() == Opened::Left) return;
    pnlBMR->FillFields();
    pnlBodyFat->FillFields();
    FillTool();
    FitToPanels();
  });
}

frmTools::Opened frmTools::GreetPerson() {
  const int person = session_.profile.CurrentPersonID.toInt();
  if (person > 0 && !session_.settings.MedicalDisclaimer) frmMedicalDisclaimer(session_, this).exec();
  if (person < 0) session_.boxes.Show(SampleProfileNotice());
  return isVisible() ? Opened::GoOn : Opened::Left;
}

frmTools::Opened frmTools::AskForMissingData() {
  if (!profile_.initialWeight) {
    std::function<void()> help;
    if (navigator_.ShowHelp) help = [this] { navigator_.ShowHelp(startingWeightTopic); };
    if (session_.boxes.Show(StartingWeightQuestion(help)) == BoxButton::Yes) {
      LeaveFor([this] { navigator_.ShowForm(QStringLiteral("frmData")); });
      return Opened::Left;
    }
    Lock();
  }
  if (!profile_.body.BirthDate.isValid() && session_.boxes.Show(GenderAndBirthDateQuestion()) == BoxButton::Yes) {
    LeaveFor([this] {
      if (navigator_.OpenSetup) navigator_.OpenSetup(SetupTab::Profiles);
    });
    return Opened::Left;
  }
  return Opened::GoOn;
}

void frmTools::Lock() {
  for (QWidget *control : {static_cast<QWidget *>(cboTools), static_cast<QWidget *>(panels_),
                           static_cast<QWidget *>(cmdPrint), static_cast<QWidget *>(cmdHelp)}) {
    control->setEnabled(false);
  }
  findChild<QLabel *>(QStringLiteral("lblTools"))->setEnabled(false);
  cmdClose->setDefault(true);
  cmdClose->setFocus();
}

void frmTools::LeaveFor(const std::function<void()> &door) {
  reject();
  door();
}

void frmTools::SelectTool(int index) {
  panels_->setCurrentIndex(index);
  FillTool();
  FitToPanels();
}

void frmTools::FillTool() {
  if (panels_->isEnabled()) {
    findChild<QPushButton *>(QString::fromLatin1(tools[cboTools->currentIndex()].command))->setDefault(true);
  }
  switch (static_cast<ToolsPanel>(cboTools->currentIndex())) {
    case ToolsPanel::GoalPlanner:
      pnlPlanner->FocusGoal();
      break;
    case ToolsPanel::CaloricNeeds:
      pnlBMR->ShowBMRTool();
      break;
    case ToolsPanel::BodyFat:
      pnlBodyFat->ShowBodyFatTool();
      pnlBodyFat->FocusFirst();
      break;
  }
}

void frmTools::FollowChange(const DataChange &change) {
  const bool shown =
      change.table == Table::People || change.table == Table::WeightLoss || change.table == Table::Measurements;
  if (!shown || !change.Concerns(session_.profile.CurrentPersonID)) return;
  GuardedQuietly([this] {
    profile_ = ReadToolsProfile(session_);
    pnlPlanner->ShowWeights();
    pnlBMR->ShowBMRTool();
    pnlBMR->ClearBMRResults();
    pnlBodyFat->ShowBodyFatTool();
  });
}

void frmTools::PrintResults() {
  if (session_.boxes.Show(PrintResultsQuestion()) != BoxButton::Ok) return;
  // Dark colours do not belong on paper.
  const QPalette desktop = QApplication::palette();
  const QPalette paper = IsDark(desktop) ? QPalette(QColor(0xF0, 0xF0, 0xF0)) : desktop;
  setPalette(paper);
  RepaintPanels(this, paper);
  Print(session_, QStringLiteral("basPrinting"), QStringLiteral("PrintWindow"),
        [this](Printing &printing) { return printing.PrintPicture(*this); });
  setPalette({});
  RepaintPanels(this, desktop);
}

void frmTools::done(int result) {
  if (planShown_) {
    planShown_ = false;
    disconnect(&session_.changes, nullptr, this, nullptr);
    Guarded(session_, Quiet("Form_Unload"), [this] { pnlPlanner->StorePlan(); });
  }
  QDialog::done(result);
}

void OpenTools(Session &session, const Navigator &navigator, ToolsPanel panel, QWidget *owner) {
  frmTools(session, navigator, panel, owner).exec();
}

void CloseToolsWindow() {
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (auto *tools = qobject_cast<frmTools *>(window); tools && tools->isVisible()) tools->reject();
  }
}

}  // namespace trimlog
