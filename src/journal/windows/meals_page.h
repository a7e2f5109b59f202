#pragma once

#include "journal/windows/journal_page.h"

namespace trimlog {

/// The tab of what was eaten or planned: the day's foods, their totals against the targets, the net calories in words.
class MealsPage : public JournalPage {
  Q_OBJECT
 public:
  MealsPage(const JournalParts &parts, QWidget *parent);

  void TakeFocus() override;
  void Print() override;

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;
};

}  // namespace trimlog
