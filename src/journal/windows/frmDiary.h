#pragma once

#include <array>

#include "core/windows/frame/content_window.h"
#include "journal/windows/journal_page.h"

class QCheckBox;
class QLayout;
class QMenu;
class QToolButton;

namespace trimlog {

class DayBar;
class JournalTabs;
class WaterPanel;

/// The journal: what was eaten, done, measured and noted, a day at a time or over all days.
class frmDiary : public ContentWindow {
  Q_OBJECT
 public:
  frmDiary(Session &session, const Navigator &navigator, const JournalDoors &doors, QWidget *parent = nullptr);

  bool ValidateFields() override { return SaveOpenEdit() == EditOutcome::Saved; }
  EditOutcome SaveOpenEdit() override;
  void DropOpenEdit() override;
  void Activated() override;
  void GotoDate(const QDate &date) override;
  WindowCommands Commands() override;

 protected:
  void contextMenuEvent(QContextMenuEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  QWidget *MakeHeader();
  QWidget *MakeFooter();
  void AddDefaultTabs(QLayout *row);
  void ShowDefaultTab();
  void ShowColours();
  void OpenTips();

  Session &session_;
  const Navigator &navigator_;
  JournalDay day_;
  JournalTabs *SSTab1 = nullptr;
  WaterPanel *pnlWater = nullptr;
  QWidget *header_ = nullptr;
  QToolButton *cmdTips = nullptr;
  std::array<QCheckBox *, 4> chkDefaultDiaryTab_{};
  QMenu *mnuPM3 = nullptr;
};

}  // namespace trimlog
