#pragma once

#include "core/windows/setup/setup_page.h"

class QCheckBox;

namespace trimlog {

class ChoiceCombo;

/// What the calendar shows, and the unit system.
class SetupCalendarPage : public SetupPage {
  Q_OBJECT
 public:
  SetupCalendarPage(Session &session, QWidget *parent);
  void Load(const Settings &settings) override;
  void Store(Settings &edited) override;

 private:
  QWidget *MakeCalendarGroup(Session &session);
  QWidget *MakeUnitsGroup(Session &session);

  QCheckBox *chkOpenToday = nullptr;
  QCheckBox *chkShowLoss = nullptr;
  QCheckBox *chkColorCoding = nullptr;
  QCheckBox *chkShowCalories = nullptr;
  ChoiceCombo *cboNutrientID = nullptr;
  ChoiceCombo *cboUomID = nullptr;
};

}  // namespace trimlog
