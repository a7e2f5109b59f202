#pragma once

#include "companions/windows/wizard_page.h"
#include "companions/wizard_finish.h"
#include "core/session/session.h"

class QComboBox;
class QGridLayout;
class QLabel;

namespace trimlog {

class ChoiceCombo;
class DateField;
class NumberField;

/// The first weight, the goal and, on the first run, the diet plan.
class WeightPage : public WizardPage {
  Q_OBJECT
 public:
  /// `start` fills the fields; a first weight that the profile has already is shown and stays.
  WeightPage(Session &session, bool asksForDiet, const WizardStart &start, QWidget *parent);

  void Enter(const WizardAnswers &answers) override;
  QWidget *FirstField() const override;
  void Store(WizardAnswers &answers) override;
  bool Check(const WizardAnswers &answers) override;

 private:
  void AddWeights(QGridLayout *grid);
  void AddStartingDate(QGridLayout *grid);
  void AddDiet(QGridLayout *grid);
  void Fill(const WizardStart &start);
  void FollowDiet();
  void TellHealthyWeight();

  Session &session_;
  WizardAnswers answers_;  ///< of the steps before
  NumberField *txtStartingWeight = nullptr;
  NumberField *txtGoal = nullptr;
  QLabel *lblStartingWeightUom = nullptr;
  QLabel *lblGoalUom = nullptr;
  DateField *txtStartingDate = nullptr;
  QWidget *cmdCalendar = nullptr;
  QComboBox *cboDiet = nullptr;  ///< on the first run only, like the next two
  ChoiceCombo *cboNutrientID = nullptr;
  QLabel *lblNutrientID = nullptr;
};

}  // namespace trimlog
