#include "journal/windows/frmQuickDiary.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/settings/window_position.h"
#include "core/windows/controls/theme.h"
#include "core/windows/frame/window_place.h"
#include "journal/windows/journal_tabs.h"
#include "journal/windows/water_panel.h"
#include "platform/twips.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/machine/window_stacking.h"

namespace trimlog {

namespace {

const QString name = QStringLiteral("frmQuickDiary");

frmQuickDiary *QuickJournalOver(const QWidget *owner) {
  return owner->findChild<frmQuickDiary *>(name, Qt::FindDirectChildrenOnly);
}

}  // namespace

frmQuickDiary::frmQuickDiary(Session &session, const Navigator &navigator, const JournalDoors &doors, QWidget *owner)
    : ContentWindow(owner, Qt::Tool),
      session_(session),
      day_(session, JournalKind::Quick(), session.windows.RememberedDate) {
  setObjectName(name);
  setWindowTitle(tr("Quick Journal for This Day"));
  setAttribute(Qt::WA_DeleteOnClose);
  header_ = MakeHeader();
  SSTab1 = new JournalTabs({session_, navigator, doors, day_}, this);
  SSTab1->OpenOn(session_.settings.DefaultDiaryTab);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(header_);
  layout->addWidget(SSTab1, 1);
  day_.mayLeave = [this] { return SaveOpenEdit() == EditOutcome::Saved; };
  connect(&day_, &JournalDay::DateChanged, this, &frmQuickDiary::ShowDate);
  connect(&session_.changes, &DataChanges::ActiveDateChanged, this, &frmQuickDiary::FollowSoon);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &frmQuickDiary::ShowColours);
  // The frame has asked for what was being typed; the pages still hold the former person's rows.
  connect(&session_.changes, &DataChanges::ProfileLoaded, this, [this] {
    DropOpenEdit();
    close();
  });
  ShowDate();
  ShowColours();
  KeepContentsWhole();
  ApplyPlace();
  session_.windows.QuickJournalOpen = true;
}

frmQuickDiary::~frmQuickDiary() { session_.windows.QuickJournalOpen = false; }

QWidget *frmQuickDiary::MakeHeader() {
  auto *header = new QWidget(this);
  header->setObjectName(QStringLiteral("pnlDate"));
  auto *row = new QHBoxLayout(header);
  row->setContentsMargins(6, 2, 6, 2);
  row->setSpacing(6);
  txtDate = new DateField(QStringLiteral("txtDate"), tr("Date"), session_.locale, header);
  txtDate->setReadOnly(true);
  txtDate->setFixedWidth(FieldWidth(txtDate, 10));
  txtDate->setToolTip(tr("The day that is active in the calendar"));
  row->addWidget(txtDate);
  lblDate = AddLabel(row, QStringLiteral("lblDate"), {});
  row->addStretch(1);
  pnlWater = new WaterPanel(session_, day_, header);
  row->addWidget(pnlWater);
  row->addStretch(1);
  auto *cmdClose = AddCommand(row, QStringLiteral("cmdClose"), tr("&Close"), tr("Closes the Quick Journal (Esc)"));
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
  return header;
}

void frmQuickDiary::ShowDate() {
  txtDate->SetDate(day_.Date());
  lblDate->setText(session_.locale.dayName(day_.Date().dayOfWeek()));
}

void frmQuickDiary::ShowColours() { PaintPanel(header_, session_.profile.BackColor); }

EditOutcome frmQuickDiary::SaveOpenEdit() {
  EditOutcome outcome = SSTab1->SaveOpenEdit();
  if (outcome == EditOutcome::Saved) outcome = pnlWater->SaveOpenEdit();
  if (outcome != EditOutcome::Saved) RaiseWindow(this);  // where what is refused can be put right
  return outcome;
}

void frmQuickDiary::DropOpenEdit() {
  SSTab1->DropOpenEdit();
  pnlWater->DropOpenEdit();
}

void frmQuickDiary::Activated() {
  pnlWater->Follow();
  SSTab1->CurrentPage().TakeFocus();
}

WindowCommands frmQuickDiary::Commands() {
  return {{QStringLiteral("mnuFilePrint"), [this] {
             if (SaveOpenEdit() == EditOutcome::Saved) SSTab1->CurrentPage().Print();
           }}};
}

// Not within the calendar's own work: what is refused here shows a box.
void frmQuickDiary::FollowSoon() { QMetaObject::invokeMethod(this, &frmQuickDiary::Follow, Qt::QueuedConnection); }

void frmQuickDiary::Follow() { day_.GoToDate(session_.windows.RememberedDate); }

void frmQuickDiary::KeepContentsWhole() {
  const QSize first(PixelsFromTwips(defaultQuickJournalWidth), PixelsFromTwips(defaultQuickJournalHeight));
  setMinimumSize(first.expandedTo(layout()->minimumSize()));
}

void frmQuickDiary::ApplyPlace() { PutInPlace(*this, session_.windows.quickJournalPlace); }

void frmQuickDiary::KeepPlace() {
  if (isVisible()) session_.windows.quickJournalPlace = PlaceOf(QRect(pos(), size()));
}

bool frmQuickDiary::event(QEvent *event) {
  const bool handled = ContentWindow::event(event);
  if (event->type() == QEvent::LayoutRequest) KeepContentsWhole();
  if (event->type() == QEvent::ApplicationPaletteChange) ShowColours();
  return handled;
}

void frmQuickDiary::moveEvent(QMoveEvent *event) {
  ContentWindow::moveEvent(event);
  KeepPlace();
}

void frmQuickDiary::resizeEvent(QResizeEvent *event) {
  ContentWindow::resizeEvent(event);
  KeepPlace();
}

void frmQuickDiary::closeEvent(QCloseEvent *event) {
  event->setAccepted(SaveOpenEdit() == EditOutcome::Saved);
  if (!event->isAccepted()) return;
  KeepPlace();
  WindowPosition(session_, true, WindowGroup::QuickJournalPosition);
  WindowPosition(session_, true, WindowGroup::QuickJournalSize);
}

void frmQuickDiary::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    ContentWindow::keyPressEvent(event);
  }
}

void OpenQuickJournal(Session &session, const Navigator &navigator, const JournalDoors &doors, QWidget *owner) {
  frmQuickDiary *window = QuickJournalOver(owner);
  if (!window) window = new frmQuickDiary(session, navigator, doors, owner);
  RaiseWindow(window);
  window->Activated();
}

void ResetQuickJournal(QWidget *owner) {
  if (frmQuickDiary *window = QuickJournalOver(owner)) window->ApplyPlace();
}

}  // namespace trimlog
