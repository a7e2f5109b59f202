#include "journal/windows/frmDiary.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/windows/controls/art.h"
#include "core/windows/controls/door_control.h"
#include "core/windows/controls/theme.h"
#include "journal/windows/actions_combo.h"
#include "journal/windows/day_bar.h"
#include "journal/windows/journal_actions.h"
#include "journal/windows/journal_tabs.h"
#include "journal/windows/meals_page.h"
#include "journal/windows/water_panel.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

frmDiary::frmDiary(Session &session, const Navigator &navigator, const JournalDoors &doors, QWidget *parent)
    : ContentWindow(parent), session_(session), navigator_(navigator), day_(session, JournalKind::Diary(), QDate()) {
  setObjectName(QStringLiteral("frmDiary"));
  setAccessibleName(tr("Journal"));
  header_ = MakeHeader();
  SSTab1 = new JournalTabs({session_, navigator_, doors, day_}, this);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(spacing::tight);
  layout->addWidget(header_);
  layout->addWidget(SSTab1, 1);
  layout->addWidget(MakeFooter());
  day_.mayLeave = [this] { return ValidateFields(); };
  connect(SSTab1, &JournalTabs::PageShown, this, &frmDiary::ShowDefaultTab);
  connect(&session_.changes, &DataChanges::SettingsChanged, this, [this] {
    ShowDefaultTab();
    ShowColours();
  });
  SSTab1->OpenOn(session_.settings.DefaultDiaryTab);
  ShowDefaultTab();
  ShowColours();
}

QWidget *frmDiary::MakeHeader() {
  auto *header = new QWidget(this);
  header->setObjectName(QStringLiteral("pnlDate"));
  auto *bar = new DayBar(session_, day_, this);
  connect(bar, &DayBar::DayChosen, this, [this] { SSTab1->CurrentPage().TakeFocus(); });
  cmdTips = new QToolButton(header);
  cmdTips->setObjectName(QStringLiteral("cmdTips"));
  cmdTips->setText(tr("T&ips"));
  cmdTips->setIcon(ArtIcon(QStringLiteral("tips")));
  cmdTips->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  cmdTips->setAutoRaise(true);
  cmdTips->setToolTip(tr("Tips for the journal"));
  NeedsDoor(*cmdTips, navigator_.ShowHelp);
  connect(cmdTips, &QToolButton::clicked, this, &frmDiary::OpenTips);
  auto *row = new QHBoxLayout(header);
  row->setContentsMargins(0, 0, spacing::between, 0);
  row->setSpacing(spacing::tight);
  row->addWidget(bar, 1);
  row->addWidget(cmdTips);
  return header;
}

QWidget *frmDiary::MakeFooter() {
  auto *footer = new QWidget(this);
  auto *row = new QHBoxLayout(footer);
  row->setContentsMargins(spacing::between, 0, spacing::between, spacing::tight);
  pnlWater = new WaterPanel(session_, day_, footer);
  // Among all dates the water is that of the meals' row, also while the exercises are looked at.
  pnlWater->rowDate = [this] {
    const QDate shown = SSTab1->Meals().Grid()->CurrentField(QStringLiteral("ThisDate")).toDate();
    return shown.isValid() ? shown : day_.Date();
  };
  row->addWidget(pnlWater);
  row->addStretch(1);
  AddDefaultTabs(row);
  auto *cboActions1 = new ActionsCombo(QStringLiteral("cboActions1"), tr("Other Actions..."), footer);
  row->addWidget(cboActions1);
  const JournalActions actions(navigator_, *this, [this] { return ValidateFields(); });
  actions.FillList(*cboActions1);
  mnuPM3 = actions.MakeMenu();
  return footer;
}

void frmDiary::AddDefaultTabs(QLayout *row) {
  for (int i = 0; i < SSTab1->count(); ++i) {
    QCheckBox *check = AddCheck(row, QStringLiteral("chkDefaultDiaryTab%1").arg(i), tr("Open on this page"),
                                tr("The journal opens on this page from now on"));
    check->setAccessibleName(tr("Open on this page:%1").arg(SSTab1->tabText(i)).trimmed());
    connect(check, &QCheckBox::clicked, this, [this, i] {
      session_.settings.DefaultDiaryTab = i;
      SaveSetting(session_.settings, session_.store, QStringLiteral("DefaultDiaryTab"));
      ShowDefaultTab();  // one is always ticked: not by an exclusive group, where Tab passes by what is not ticked
    });
    chkDefaultDiaryTab_[static_cast<std::size_t>(i)] = check;
  }
}

void frmDiary::ShowDefaultTab() {
  for (int i = 0; i < SSTab1->count(); ++i) {
    QCheckBox *check = chkDefaultDiaryTab_[static_cast<std::size_t>(i)];
    check->setChecked(i == session_.settings.DefaultDiaryTab);
    check->setVisible(i == SSTab1->currentIndex());
  }
}

void frmDiary::ShowColours() {
  PaintPanel(header_, session_.profile.BackColor);
  cmdTips->setPalette(PanelButtonPalette(PanelColor(session_.profile.BackColor)));
}

EditOutcome frmDiary::SaveOpenEdit() {
  const EditOutcome outcome = SSTab1->SaveOpenEdit();
  return outcome == EditOutcome::Saved ? pnlWater->SaveOpenEdit() : outcome;
}

void frmDiary::DropOpenEdit() {
  SSTab1->DropOpenEdit();
  pnlWater->DropOpenEdit();
}

void frmDiary::Activated() {
  pnlWater->Follow();
  SSTab1->CurrentPage().TakeFocus();
}

void frmDiary::GotoDate(const QDate &date) {
  // A day that the window opens with leaves the view as it was; a day asked for later is shown alone.
  if (!isVisible() && !day_.IsSingleDate()) {
    day_.FollowRow(date);
  } else {
    day_.GoToDate(date);
  }
}

WindowCommands frmDiary::Commands() {
  return {{QStringLiteral("mnuFilePrint"), [this] {
             if (ValidateFields()) SSTab1->CurrentPage().Print();
           }}};
}

void frmDiary::OpenTips() { navigator_.ShowHelp(QStringLiteral("tips_journal")); }

void frmDiary::contextMenuEvent(QContextMenuEvent *event) { mnuPM3->popup(event->globalPos()); }

void frmDiary::changeEvent(QEvent *event) {
  ContentWindow::changeEvent(event);
  if (header_ && event->type() == QEvent::PaletteChange) ShowColours();
}

}  // namespace trimlog
