#pragma once

#include <QDate>

#include "core/windows/profiles/add_rec_page.h"

class QPlainTextEdit;

namespace trimlog {

class DateField;
class Session;

/// What is told when a day has a note already.
QString NoteExistsTitle();
QString NoteExistsText();

/// The add dialog's page of a new note: its day and its text.
class AddNotePage : public AddRecPage {
  Q_OBJECT
 public:
  /// `isDateFixed`: the note belongs to the day proposed and no other.
  AddNotePage(Session &session, const QDate &proposed, bool isDateFixed, QWidget *parent);

  QString Title() const override;
  QString Header() const override;
  bool Store() override;
  /// Of the note that Store made.
  QDate StoredDate() const;
  int StoredID() const { return recordID_; }

 private:
  Session &session_;
  DateField *txtAddRecDate3;
  QPlainTextEdit *txtAddRecNotes;
  int recordID_ = 0;
};

}  // namespace trimlog
