#include "core/windows/frame/frmMDI.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLayout>
#include <QScreen>

#include "core/session/failure_guard.h"
#include "core/settings/window_position.h"
#include "core/windows/controls/art.h"
#include "core/windows/frame/frmMain.h"
#include "core/windows/frame/frmMain1.h"
#include "core/windows/frame/frmSplash.h"
#include "core/windows/frame/window_place.h"
#include "platform/twips.h"

namespace trimlog {

namespace {

/// Which entries go with which content window.
struct FormMenus {
  const char *form;
  const char *button;
  bool weightEntries;  ///< mnuEditDeleteWeight and mnuEditGoto
  bool undoRow;
  bool print;
};
constexpr FormMenus formMenus[] = {
    {"frmData", "cmdData", true, false, true},       {"frmDiary", "cmdDiary", false, true, true},
    {"frmPlanner", "cmdPlanner", false, true, true}, {"frmGraphs", "cmdGraphs", false, false, false},
    {"frmLinks", "cmdLinks", false, false, false},
};

}  // namespace

frmMDI::frmMDI(const FrameParts &parts)
    : session_(parts.session),
      navigator_(parts.navigator),
      hooks_(parts.hooks),
      system_(parts.system),
      forms_(parts.forms),
      QueryUnload_(parts.QueryUnload) {
  setObjectName(QStringLiteral("frmMDI"));
  setWindowIcon(ArtIcon(QStringLiteral("trimlog")));
  KeepContentsWhole();
  setContextMenuPolicy(Qt::NoContextMenu);
  menus_ = new FrameMenus(menuBar());
  BuildPanels();
  ConnectCommands();
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &frmMDI::RefreshMain);
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    if (loaded_ && change.table == Table::People) GuardedQuietly([this] { LoadProfilesMenu(); });
  });
}

frmMDI::~frmMDI() = default;

void frmMDI::BuildPanels() {
  auto *middle = new QWidget(this);
  auto *layout = new QGridLayout(middle);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  statistics_ = new frmMain1(session_, middle);
  connect(statistics_, &frmMain1::OwnProfileWanted, this, &frmMDI::GoToOwnProfile);
  navigation_ = new frmMain(session_, middle);
  auto *area = new QWidget(middle);
  area->setObjectName(QStringLiteral("pnlContent"));
  content_ = new QVBoxLayout(area);
  content_->setContentsMargins(2, 2, 0, 0);
  layout->addWidget(statistics_, 0, 0, 1, 2);
  layout->addWidget(navigation_, 1, 0);
  layout->addWidget(area, 1, 1);
  layout->setColumnStretch(1, 1);
  layout->setRowStretch(1, 1);
  setCentralWidget(middle);
}

void frmMDI::ConnectCommands() {
  commands_ = FrameCommands(*this, session_, navigator_, hooks_);
  for (FrameCommand &command : commands_) {
    const QString name = QString::fromLatin1(command.menu);
    command.run = [this, failure = CommandFailure(name), work = command.run] { Guarded(session_, failure, work); };
    connect(menus_->Action(name), &QAction::triggered, this, command.run);
  }
  for (QMenu *menu : menuBar()->findChildren<QMenu *>())
    connect(menu, &QMenu::aboutToShow, this, &frmMDI::RefreshCommands);
}

void frmMDI::RefreshCommands() {
  QHash<QString, QString> reasons;
  for (const FrameCommand &command : commands_) reasons.insert(QString::fromLatin1(command.menu), command.WhyNot());
  for (const QString &name : menus_->CommandNames()) menus_->SetAvailable(name, reasons.value(name, leadsNowhere));
  menus_->CloseEmptySubmenus();
}

void frmMDI::SetMenusFor(const QString &name) {
  menus_->SetVisible(QStringLiteral("mnuEditDeleteWeight"), false);
  menus_->SetVisible(QStringLiteral("mnuEditGoto"), false);
  for (const FormMenus &row : formMenus) {
    if (name != QLatin1String(row.form)) continue;
    menus_->SetVisible(QStringLiteral("mnuEditDeleteWeight"), row.weightEntries);
    menus_->SetVisible(QStringLiteral("mnuEditGoto"), row.weightEntries);
    menus_->SetVisible(QStringLiteral("mnuEditUndoRow"), row.undoRow);
    menus_->SetVisible(QStringLiteral("mnuFilePrint"), row.print);
    navigation_->ShowCurrent(QString::fromLatin1(row.button));
  }
}

void frmMDI::ShowForm(const QString &name, const FormOpening &opening) {
  if (!HasForm(name)) return;
  if (currentForm_ && !currentForm_->ValidateFields()) return;
  const bool changes = name != currentFormName_;
  if (changes && !SaveOpenEdit()) return;
  SetMenusFor(name);
  if (changes) {
    ReplaceForm(name, opening.date.isValid() || !currentForm_ ? opening.date : currentForm_->ActiveDate());
  } else if (opening.date.isValid()) {
    currentForm_->GotoDate(opening.date);
  }
  if (loaded_) RefreshCommands();
  ShowQuickJournal(name == QStringLiteral("frmData"));
}

void frmMDI::ReplaceForm(const QString &name, const QDate &date) {
  ContentWindow *former = currentForm_;
  currentForm_ = forms_[name](content_->parentWidget());
  currentFormName_ = name;
  content_->addWidget(currentForm_);
  if (former) {
    content_->removeWidget(former);
    former->hide();
    former->deleteLater();  // the command that leads away from a window often comes from one of its own buttons
  }
  if (date.isValid()) currentForm_->GotoDate(date);
  currentForm_->show();
  currentForm_->Activated();
}

ContentWindow *frmMDI::QuickJournal() const {
  return findChild<ContentWindow *>(QStringLiteral("frmQuickDiary"), Qt::FindDirectChildrenOnly);
}

void frmMDI::ShowQuickJournal(bool visible) {
  ContentWindow *quickJournal = QuickJournal();
  if (!session_.windows.QuickJournalOpen || !quickJournal) return;
  quickJournal->setAttribute(Qt::WA_ShowWithoutActivating);  // the focus is the calendar's, to which a person came
  quickJournal->setVisible(visible);
}

// The frame's keys are heard in the window that floats over it, too.
ContentWindow *frmMDI::WindowWorkedIn() const {
  ContentWindow *quickJournal = QuickJournal();
  return quickJournal && QApplication::activeWindow() == quickJournal ? quickJournal : currentForm_;
}

WindowCommands frmMDI::FormCommands() const {
  return WindowWorkedIn() ? WindowWorkedIn()->Commands() : WindowCommands();
}

QWidget *frmMDI::ActiveControl() const { return WindowWorkedIn() ? WindowWorkedIn()->focusWidget() : nullptr; }

EditOutcome frmMDI::LeaveOpenEdit() {
  for (ContentWindow *window : {currentForm_, QuickJournal()}) {
    const EditOutcome outcome = window ? window->SaveOpenEdit() : EditOutcome::Saved;
    if (outcome != EditOutcome::Saved) return outcome;
  }
  return EditOutcome::Saved;
}

void frmMDI::DropOpenEdit() {
  for (ContentWindow *window : {currentForm_, QuickJournal()}) {
    if (window) window->DropOpenEdit();
  }
}

void frmMDI::RefreshMain() {
  statistics_->Refresh();
  navigation_->Refresh();
}

void frmMDI::ShowAsKept() {
  if (isVisible()) return;
  if (session_.windows.frameWindowState == maximisedState) {
    showMaximized();
  } else {
    show();
  }
}

void frmMDI::ReadPlace() {
  session_.windows.framePlace = PlaceOf(isMaximized() ? normalGeometry() : QRect(pos(), size()));
}

// Never smaller than what stands in it, which grows with the desktop's font, nor than its first size.
void frmMDI::KeepContentsWhole() {
  const QSize first(PixelsFromTwips(defaultFrameWidth), PixelsFromTwips(defaultFrameHeight));
  setMinimumSize(first.expandedTo(layout()->minimumSize().boundedTo(screen()->availableSize())));
}

bool frmMDI::event(QEvent *event) {
  const bool handled = QMainWindow::event(event);
  if (event->type() == QEvent::LayoutRequest) KeepContentsWhole();
  return handled;
}

void frmMDI::ApplyPlace() { PutInPlace(*this, session_.windows.framePlace); }

void frmMDI::ResetPlace() {
  const QSize screenSize = screen()->size();
  session_.windows.framePlace =
      DefaultFramePlace({TwipsFromPixels(screenSize.width()), TwipsFromPixels(screenSize.height())});
  showNormal();
  ApplyPlace();
}

void frmMDI::changeEvent(QEvent *event) {
  if (event->type() == QEvent::WindowStateChange && loaded_ && !isMinimized()) {
    session_.windows.frameWindowState = isMaximized() ? maximisedState : 0;
  }
  QMainWindow::changeEvent(event);
}

void frmMDI::closeEvent(QCloseEvent *event) {
  const bool mayClose = !QueryUnload_ || QueryUnload_();
  event->setAccepted(mayClose);
}

}  // namespace trimlog
