#pragma once

#include "journal/windows/journal_page.h"

namespace trimlog {

/// The tab of notes: the day's text, or a list over all days.
class NotesPage : public JournalPage {
  Q_OBJECT
 public:
  NotesPage(const JournalParts &parts, QWidget *parent);

  void TakeFocus() override;
  void Print() override;

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;
};

}  // namespace trimlog
