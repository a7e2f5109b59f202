#include "journal/windows/note_box.h"

#include <QFocusEvent>
#include <QTextDocument>
#include <chrono>

#include "core/session/session.h"
#include "journal/windows/day_grid.h"

namespace trimlog {

namespace {

/// Long enough not to save in the middle of a word, short enough to lose no sentence to a power cut.
constexpr std::chrono::milliseconds typingPause{1500};

}  // namespace

// Not toPlainText(), which makes a common blank of each one that does not break.
QString TextOf(const QPlainTextEdit &box) {
  QString text = box.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, QLatin1Char('\n')).replace(QChar::LineSeparator, QLatin1Char('\n'));
}

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
  if (IsTyping() && samePerson) GuardedQuietly([this] { StoreDayNote(session_, date_, note_, TextOf(*this)); });
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
  // The same text again must not move the cursor or forget what can be undone.
  const bool same = note_.RecordID == note.RecordID && note_.text == note.text && !document()->isModified();
  note_ = note;
  if (!same) setPlainText(note.text);
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
  const QString typed = TextOf(*this);
  const bool saved =
      Guarded(session_, SaveDayFailure(objectName()), [&] { note_ = StoreDayNote(session_, date_, note_, typed); });
  saving_ = false;
  failed_ = !saved;
  if (!saved) return EditOutcome::Failed;
  document()->setModified(TextOf(*this) != typed);
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
