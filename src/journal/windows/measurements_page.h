#pragma once

#include "journal/windows/journal_page.h"

namespace trimlog {

/// The tab of body measurements: the day's eight sizes beside the last ones, or a list over all days.
class MeasurementsPage : public JournalPage {
  Q_OBJECT
 public:
  MeasurementsPage(const JournalParts &parts, QWidget *parent);

  void TakeFocus() override;
  void Print() override;

 protected:
  void ShowView(JournalView view) override;
  void ShowRows() override;
};

}  // namespace trimlog
