#pragma once

#include "core/windows/frame/content_window.h"
#include "journal/windows/journal_page.h"

class QLabel;

namespace trimlog {

class DateField;
class JournalTabs;
class WaterPanel;

/// The Quick Journal: the pages of the journal for the day that is active in the Data Calendar. It floats over its
/// owner, goes with the calendar from day to day, and keeps its place and size. What is typed in it stays on its day
/// until it could be saved; then the window follows.
class frmQuickDiary : public ContentWindow {
  Q_OBJECT
 public:
  frmQuickDiary(Session &session, const Navigator &navigator, const JournalDoors &doors, QWidget *owner);
  ~frmQuickDiary() override;

  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void Activated() override;
  WindowCommands Commands() override;
  /// To the place that the session holds.
  void ApplyPlace();

 protected:
  bool event(QEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void moveEvent(QMoveEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  QWidget *MakeHeader();
  void KeepContentsWhole();
  void KeepPlace();
  void Follow();
  void FollowSoon();
  void ShowDate();
  void ShowColours();

  Session &session_;
  JournalDay day_;
  JournalTabs *SSTab1 = nullptr;
  WaterPanel *pnlWater = nullptr;
  QWidget *header_ = nullptr;
  DateField *txtDate = nullptr;
  QLabel *lblDate = nullptr;
};

/// Opens the one Quick Journal over its owner, or brings it to the front.
void OpenQuickJournal(Session &session, const Navigator &navigator, const JournalDoors &doors, QWidget *owner);
/// Brings it to the place that the session holds, if it is open.
void ResetQuickJournal(QWidget *owner);

}  // namespace trimlog
