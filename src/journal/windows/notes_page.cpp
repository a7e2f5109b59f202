#include "journal/windows/notes_page.h"

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/session/print.h"
#include "core/windows/controls/grid_menu.h"
#include "journal/day/day_records.h"
#include "journal/windows/add_note_page.h"
#include "journal/windows/day_grid.h"
#include "journal/windows/note_box.h"
#include "journal/windows/page_buttons.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"
#include "platform/windows/grid/bound_grid.h"

namespace trimlog {

namespace {

const QString notesColumn = QStringLiteral("Notes");
constexpr int noteLines[] = {1, 2, 3, 5, 10};

/// A day has one note: one cannot be moved onto another.
QString RefuseSecondNote(const Session &session, const GridRowEdit &row) {
  const QString thisDate = QStringLiteral("ThisDate");
  if (!row.IsChanged(thisDate)) return {};
  const std::optional<int> other = NoteOn(session, row.Get(thisDate).toDate());
  return other && *other != row.Key() ? QStringLiteral("A note already exists for this date.") : QString();
}

}  // namespace

NotesPage::NotesPage(const JournalParts &parts, QWidget *parent)
    : JournalPage(parts, QStringLiteral("NotesPage"), parent) {
  auto *buttons = new PageButtons(day_.Kind().isSmall, this);
  cmdNewNote = buttons->AddNew(QStringLiteral("cmdNewNote"), QStringLiteral("Writes a note for a day."));
  cmdDeleteNote = buttons->AddDelete(QStringLiteral("cmdDeleteNote"), QStringLiteral("Deletes the note."));
  cmdPrintNote = buttons->AddPrint(QStringLiteral("cmdPrintNote"), QStringLiteral("Prints the notes shown."));
  buttons->AddStretch();
  connect(cmdNewNote, &QPushButton::clicked, this, &NotesPage::AddNew);
  connect(cmdDeleteNote, &QPushButton::clicked, this, &NotesPage::DeleteNotes);
  connect(cmdPrintNote, &QPushButton::clicked, this, &NotesPage::Print);
  views_ = new QStackedWidget(this);
  buttons->LayOutPage()->addWidget(views_);
  views_->addWidget(MakeSingle());
  if (day_.Kind().viewSetting) views_->addWidget(MakeList());
  UpdateButtons();
}

QWidget *NotesPage::MakeSingle() {
  auto *pnlNotes = new QWidget(views_);
  pnlNotes->setObjectName(QStringLiteral("pnlNotes"));
  auto *layout = new QVBoxLayout(pnlNotes);
  layout->setContentsMargins({});
  txtNotes = new NoteBox(session_, pnlNotes);
  txtNotes->setPlaceholderText(
      QStringLiteral("No note for this day yet. \"New...\" writes one: a mood, a reason, a plan for tomorrow."));
  layout->addWidget(txtNotes);
  connect(txtNotes, &NoteBox::NoteComesOrGoes, this, &NotesPage::UpdateButtons);
  return pnlNotes;
}

QWidget *NotesPage::MakeList() {
  auto *list = new QWidget(views_);
  auto *layout = new QVBoxLayout(list);
  layout->setContentsMargins({});
  MakeGrid(list);
  layout->addWidget(grdNotes, 1);

  auto *shpNotesLines = new QFrame(list);
  shpNotesLines->setObjectName(QStringLiteral("shpNotesLines"));
  shpNotesLines->setFrameShape(QFrame::StyledPanel);
  layout->addWidget(shpNotesLines, 0, Qt::AlignLeft);
  auto *row = new QHBoxLayout(shpNotesLines);
  row->setContentsMargins(spacing::between, spacing::tight, spacing::between, spacing::tight);
  QLabel *caption = AddLabel(row, QStringLiteral("lblNotesLines1"), QStringLiteral("Sho&w"));
  cboNotesLines = new QComboBox(shpNotesLines);
  cboNotesLines->setObjectName(QStringLiteral("cboNotesLines"));
  for (const int lines : noteLines) cboNotesLines->addItem(QString::number(lines), lines);
  caption->setBuddy(cboNotesLines);
  row->addWidget(cboNotesLines);
  AddLabel(row, QStringLiteral("lblNotesLines2"), QStringLiteral("line(s) of each note"));
  connect(cboNotesLines, &QComboBox::activated, this, [this] { SetLines(cboNotesLines->currentData().toInt()); });
  connect(&session_.changes, &DataChanges::SettingsChanged, this, &NotesPage::ShowLines);
  ShowLines();
  return list;
}

void NotesPage::MakeGrid(QWidget *parent) {
  grdNotes = MakeDayGrid({session_, navigator_, doors_, day_},
                         {.grid = QStringLiteral("grdNotes"),
                          .label = QStringLiteral("Notes of all days"),
                          .recordSource = QStringLiteral("datNotes"),
                          .table = Table::Notes},
                         parent);
  grdNotes->SetColumns({DateColumn(),
                        {.name = notesColumn,
                         .caption = QStringLiteral("Notes"),
                         .field = notesColumn,
                         .type = GridType::Memo,
                         .width = 30,
                         .editable = true}});
  grdNotes->SetSpareColumn(notesColumn);
  grdNotes->SetPlaceholderText(QStringLiteral("No notes yet. \"New...\" writes one."));
  grdNotes->Hooks().beforeUpdate = [this](GridRowEdit &row) { return RefuseSecondNote(session_, row); };
  (new GridMenu(session_, navigator_, this))->Attach(*grdNotes);
  FollowCurrentRow(*grdNotes, day_);
  for (const auto rowsChange : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(&grdNotes->Model(), rowsChange, this, &NotesPage::UpdateButtons);
  }
  connect(&grdNotes->Model(), &QAbstractItemModel::modelReset, this, &NotesPage::UpdateButtons);
}

void NotesPage::ShowLines() {
  cboNotesLines->setCurrentIndex(std::max(0, cboNotesLines->findData(session_.settings.NotesLines)));
  grdNotes->SetRowLines(cboNotesLines->currentData().toInt());
}

void NotesPage::SetLines(int lines) {
  session_.settings.NotesLines = lines;
  SaveSetting(session_.settings, session_.store, QStringLiteral("NotesLines"));
  ShowLines();
}

void NotesPage::ShowView(JournalView view) { views_->setCurrentIndex(view == JournalView::SingleDate ? 0 : 1); }

void NotesPage::ShowRows() {
  if (day_.IsSingleDate()) {
    txtNotes->ShowDay(day_.Date());
  } else {
    const GridSource source = NotesSource(day_.Scope());
    const bool shown =
        grdNotes->Model().IsOpen() ? grdNotes->SetSource(source) : grdNotes->Open(session_.Data(), source);
    if (shown) grdNotes->setCurrentIndex(grdNotes->Model().index(0, grdNotes->Model().ColumnByName(notesColumn)));
  }
  UpdateButtons();
}

void NotesPage::UpdateButtons() {
  const bool single = day_.IsSingleDate();
  const bool any = single ? txtNotes->HasNote() : grdNotes->Model().RecordCount() > 0;
  cmdNewNote->setEnabled(!single || !any);
  cmdDeleteNote->setEnabled(any);
  cmdPrintNote->setEnabled(any);
}

EditOutcome NotesPage::SaveOpenEdit() {
  return day_.IsSingleDate() ? txtNotes->Save() : SaveDayGrid(session_, *grdNotes);
}

void NotesPage::DropOpenEdit() {
  if (day_.IsSingleDate()) {
    txtNotes->Restore();
  } else {
    DropDayGrid(*grdNotes);
  }
}

void NotesPage::TakeFocus() {
  if (!day_.IsSingleDate()) return grdNotes->setFocus();
  if (txtNotes->isEnabled()) {
    txtNotes->setFocus();
  } else {
    cmdNewNote->setFocus();
  }
}

QDate NotesPage::ProposedDate() const {
  if (day_.IsSingleDate()) return day_.Date();
  const QDate ofRow = grdNotes->CurrentField(QStringLiteral("ThisDate")).toDate();
  return ofRow.isValid() ? ofRow : session_.Today();
}

void NotesPage::AddNew() {
  if (day_.IsSingleDate() && txtNotes->HasNote()) return session_.boxes.Warn(NoteExistsTitle(), NoteExistsText());
  if (SaveOpenEdit() != EditOutcome::Saved) return;
  QDate date;
  int recordID = 0;
  const auto make = [this](QWidget *dialog) {
    return new AddNotePage(session_, ProposedDate(), day_.Kind().hasFixedDate, dialog);
  };
  const bool added = AddRec(window(), make, [&](AddRecPage &page) {
    date = static_cast<AddNotePage &>(page).StoredDate();
    recordID = static_cast<AddNotePage &>(page).StoredID();
  });
  if (!added) return TakeFocus();
  day_.FollowAdded(date);
  GoToAdded(recordID);
}

void NotesPage::GoToAdded(int recordID) {
  if (day_.IsSingleDate()) {
    return txtNotes->setFocus();
  }
  grdNotes->setFocus();
  if (GoToAddedRow(session_, *grdNotes, recordID, notesColumn)) grdNotes->EditCell(grdNotes->currentIndex());
}

void NotesPage::DeleteNotes() {
  if (!day_.IsSingleDate()) {
    grdNotes->DeleteSelected();
    return;
  }
  const std::optional<int> recordID = txtNotes->RecordID();
  if (!recordID) return;
  if (session_.settings.ConfirmDeletes &&
      !session_.boxes.Ask(QStringLiteral("Delete Notes?"), QStringLiteral("Delete the notes for this day?"))) {
    return;
  }
  const bool deleted = Guarded(session_, DeleteDayFailure(cmdDeleteNote->objectName()),
                               [&] { DeleteDayRecords(session_, Table::Notes, {*recordID}); });
  if (deleted) txtNotes->Restore();
  TakeFocus();
}

void NotesPage::Print() {
  if (SaveOpenEdit() != EditOutcome::Saved) return;
  if (!session_.boxes.Ask(
          QStringLiteral("Print Notes?"),
          QStringLiteral("This will print the currently displayed notes to your default printer.  Continue?"))) {
    return;
  }
  trimlog::Print(session_, QStringLiteral("frmDiary"), QStringLiteral("cmdPrintNote_Click"),
                 [this](Printing &printing) {
                   const bool single = day_.IsSingleDate();
                   const GridSource source = single ? NotesSource(day_.Scope()) : grdNotes->Model().Source();
                   return printing.PrintText(NotesToPrint(session_, source, single ? day_.Date() : QDate()));
                 });
}

}  // namespace trimlog
