#pragma once

#include "journal/windows/journal_page.h"

class QComboBox;
class QPushButton;
class QStackedWidget;

namespace trimlog {

class AddRecPage;
class NoteBox;

/// The tab of notes: the day's text, or a list over all days.
class NotesPage : public JournalPage {
  Q_OBJECT
 public:
  NotesPage(const JournalParts &parts, QWidget *parent);

  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void TakeFocus() override;
  void Print() override;
  /// Asks for a new note, as the button does; tells when the day shown has one.
  void AddNew();
  /// Deletes the day's note, or the chosen ones of the list, after the question where it is wanted.
  void DeleteNotes();

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;

 private:
  void AddButtons();
  QWidget *MakeSingle();
  QWidget *MakeList();
  void MakeGrid(QWidget *parent);
  void ShowLines();
  void SetLines(int lines);
  void UpdateButtons();
  void GoToAdded(int recordID);
  QDate ProposedDate() const;

  QStackedWidget *views_ = nullptr;
  NoteBox *txtNotes = nullptr;
  BoundGrid *grdNotes = nullptr;  ///< none in a window that shows single days only
  QComboBox *cboNotesLines = nullptr;
  QPushButton *cmdNewNote = nullptr;
  QPushButton *cmdDeleteNote = nullptr;
  QPushButton *cmdPrintNote = nullptr;
};

}  // namespace trimlog
