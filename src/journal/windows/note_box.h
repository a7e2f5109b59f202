#pragma once

#include <QPlainTextEdit>
#include <QTimer>

#include "core/frame/edit_outcome.h"
#include "journal/day/day_note.h"

namespace trimlog {

/// The text of a day's note, bound to the file: it saves itself when the box or the window is left, and after a short
/// pause in typing, each time in one transaction. A day without a note disables it. What others change is read afresh,
/// except while something is typed that is not saved yet.
class NoteBox : public QPlainTextEdit {
  Q_OBJECT
 public:
  NoteBox(Session &session, QWidget *parent);
  ~NoteBox() override;

  /// Shows a day's note. What is still unsaved of the day shown before is saved first.
  void ShowDay(const QDate &date);
  bool HasNote() const { return note_.RecordID.has_value(); }
  std::optional<int> RecordID() const { return note_.RecordID; }
  /// Something was typed that is not saved yet.
  bool IsTyping() const;
  EditOutcome Save();
  void Restore();  ///< back to what the file holds

 Q_SIGNALS:
  void NoteComesOrGoes();  ///< the day has a note now, or has none any more

 protected:
  void focusOutEvent(QFocusEvent *event) override;

 private:
  void Read();
  void ReadUnlessTyping();
  void Show(const DayNote &note);

  Session &session_;
  QDate date_;
  QString person_;  ///< whose day it is
  DayNote note_;
  QTimer pause_;
  bool saving_ = false;
  bool failed_ = false;  ///< the last save did: only leaving tries again, or the box would open at every pause
};

}  // namespace trimlog
