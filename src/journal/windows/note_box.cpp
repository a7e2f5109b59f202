#include "journal/windows/note_box.h"

#include <QFocusEvent>
#include <chrono>

#include "core/session/session.h"
#include "journal/windows/day_grid.h"
#include "platform/windows/fields/memo_text.h"

namespace trimlog {

namespace {

/// Long enough not to save in the middle of a word, short enough to lose no sentence to a power cut.
constexpr std::chrono::milliseconds typingPause{1500};

}  // namespace

NoteBox::NoteBox(Session &session, QWidget *parent) : QPlainTextEdit(parent), session_(session) {
  setObjectName(QStringLiteral("txtNotes"));
  setAccessibleName(QStringLiteral("Notes of this day"));
  setTabChangesFocus(true);
  setEnabled(false);
  pause_.setSingleShot(true);
  pause_.setInterval(typingPause);
  connect(&pause_, &QTimer::timeout, this, &NoteBox::Save);
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    if (IsTyping() && !failed_) pause_.start();
  });
  connect(&session_.changes, &DataChanges::Changed, this, [this](const DataChange &change) {
    const bool ours = change.table == Table::Notes && change.Concerns(session_.profile.CurrentPersonID);
    if (ours && !saving_) ReadUnlessTyping();
  });
}

// A box that goes down without having been left, whatever closed its window.
NoteBox::~NoteBox() {
  const bool samePerson = person_ == session_.profile.CurrentPersonID;
  if (IsTyping() && samePerson)
    GuardedQuietly([this] { StoreDayNote(session_, date_, note_, MemoText(*this, note_.text)); });
}

bool NoteBox::IsTyping() const { return HasNote() && document()->isModified(); }

void NoteBox::ShowDay(const QDate &date) {
  if (date != date_) Save();
  date_ = date;
  person_ = session_.profile.CurrentPersonID;
  ReadUnlessTyping();
}

void NoteBox::ReadUnlessTyping() {
  if (date_.isValid() && !IsTyping()) Read();
}

void NoteBox::Read() {
  Guarded(session_, LoadDayFailure(objectName()), [this] { Show(ReadDayNote(session_, date_)); });
}

void NoteBox::Show(const DayNote &note) {
  const bool comesOrGoes = HasNote() != note.RecordID.has_value();
  note_ = note;
  // The same text again must not move the cursor or forget what can be undone. Another one is gone on with at its end.
  if (MemoText(*this, note.text) != note.text) {
    setPlainText(note.text);
    moveCursor(QTextCursor::End);
  }
  document()->setModified(false);
  failed_ = false;
  pause_.stop();
  setEnabled(HasNote());
  if (comesOrGoes) Q_EMIT NoteComesOrGoes();
}

EditOutcome NoteBox::Save() {
  pause_.stop();
  if (!IsTyping() || saving_) return EditOutcome::Saved;
  saving_ = true;
  const QString typed = MemoText(*this, note_.text);
  const bool saved =
      Guarded(session_, SaveDayFailure(objectName()), [&] { note_ = StoreDayNote(session_, date_, note_, typed); });
  saving_ = false;
  failed_ = !saved;
  if (!saved) return EditOutcome::Failed;
  document()->setModified(MemoText(*this, note_.text) != typed);
  return EditOutcome::Saved;
}

void NoteBox::Restore() {
  document()->setModified(false);
  if (date_.isValid()) Read();
}

void NoteBox::focusOutEvent(QFocusEvent *event) {
  QPlainTextEdit::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MenuBarFocusReason || saving_) return;
  // A box cannot open while the focus is on its way.
  QMetaObject::invokeMethod(this, &NoteBox::Save, Qt::QueuedConnection);
}

}  // namespace trimlog
