#include "journal/windows/add_note_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include "journal/day/day_records.h"
#include "journal/windows/add_rec_day.h"
#include "platform/windows/controls/form_rows.h"
#include "platform/windows/fields/date_field.h"
#include "platform/windows/fields/memo_text.h"

namespace trimlog {

QString NoteExistsTitle() { return QStringLiteral("Note Already Exists"); }
QString NoteExistsText() {
  return QStringLiteral("Unable to add the new note because a note already exists for this date.");
}

AddNotePage::AddNotePage(Session &session, const QDate &proposed, bool isDateFixed, QWidget *parent)
    : AddRecPage(parent), session_(session) {
  setObjectName(QStringLiteral("pnlAddRec(3)"));
  QGridLayout *form = MakeFormGrid();
  setLayout(form);
  txtAddRecDate3 = AddDayField(session, form, 3, proposed, isDateFixed, this);
  txtAddRecNotes = new QPlainTextEdit(this);
  txtAddRecNotes->setObjectName(QStringLiteral("txtAddRecNotes"));
  txtAddRecNotes->setAccessibleName(QStringLiteral("Note"));
  txtAddRecNotes->setTabChangesFocus(true);
  txtAddRecNotes->setMinimumSize(fontMetrics().averageCharWidth() * 60, fontMetrics().lineSpacing() * 7);
  QLabel *caption = AddFormRow(form, QStringLiteral("&Note:"), txtAddRecNotes, {txtAddRecNotes});
  form->setAlignment(caption, Qt::AlignTop);
  setFocusProxy(txtAddRecNotes);
}

QString AddNotePage::Title() const { return QStringLiteral("Add a New Note"); }

QString AddNotePage::Header() const { return QStringLiteral("Enter the new note's information and click <OK>."); }

QDate AddNotePage::StoredDate() const { return txtAddRecDate3->Date(); }

bool AddNotePage::Store() {
  const DayCheck check{
      .invalidDate = QStringLiteral("Please choose or enter a valid date for this note."),
      .existsTitle = NoteExistsTitle(),
      .existsText = NoteExistsText(),
      .exists = [this](const QDate &date) { return NoteOn(session_, date).has_value(); },
  };
  return GuardedAddRec(session_, 3, [&] {
    if (!CheckDay(session_, *txtAddRecDate3, check)) return false;
    recordID_ = AddNote(session_, txtAddRecDate3->Date(), MemoText(*txtAddRecNotes));
    return true;
  });
}

}  // namespace trimlog
