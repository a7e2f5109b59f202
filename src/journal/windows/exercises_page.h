#pragma once

#include "journal/windows/journal_page.h"

namespace trimlog {

/// The tab of exercises done or planned: the rows, the day's minutes and calories, the net calories in words.
class ExercisesPage : public JournalPage {
  Q_OBJECT
 public:
  ExercisesPage(const JournalParts &parts, QWidget *parent);

  void TakeFocus() override;
  void Print() override;

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;
};

}  // namespace trimlog
