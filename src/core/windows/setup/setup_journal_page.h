#pragma once

#include "core/windows/setup/setup_page.h"

class QButtonGroup;
class QCheckBox;

namespace trimlog {

class ChoiceCombo;

/// How the journal behaves.
class SetupJournalPage : public SetupPage {
  Q_OBJECT
 public:
  explicit SetupJournalPage(QWidget *parent);
  void Load(const Settings &settings) override;
  void Store(Settings &edited) override;

 private:
  QWidget *MakeConfirmGroup(const QString &title, const QString &prefix, const QStringList &captions,
                            QButtonGroup *&options);

  QCheckBox *chkConfirmDeletes = nullptr;
  QCheckBox *chkSmartDates = nullptr;
  QCheckBox *chkBodyFat = nullptr;
  QCheckBox *chkNetCaloriesBMR = nullptr;
  ChoiceCombo *cboDefaultDiaryTab = nullptr;
  QButtonGroup *optConfirmMealUpdates = nullptr;
  QButtonGroup *optConfirmExerciseUpdates = nullptr;
};

}  // namespace trimlog
