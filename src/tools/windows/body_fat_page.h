#pragma once

#include <QWidget>

#include "core/session/session.h"
#include "tools/tools_profile.h"

class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;

namespace trimlog {

class BodyFatBar;
class NumberField;
class ResultText;

/// The Body Fat Assessment: the percentage of body fat from waist and weight, its place on a bar, and what to think of
/// it.
class BodyFatPage : public QWidget {
  Q_OBJECT
 public:
  BodyFatPage(Session &session, const ToolsProfile &profile, QWidget *parent);

  /// Fills the field that starts from the profile: the goal weight.
  void FillFields();
  /// Shows what is taken from the profile and its latest measurement.
  void ShowBodyFatTool();
  /// What is still to be done: to type a waist or, where one is recorded, to calculate.
  void FocusFirst();

 private:
  void AddInputs(QLayout *layout);
  void SetToolFields();
  void ClearBodyFatSummary();
  void StartOver();
  void Calculate();

  Session &session_;
  const ToolsProfile &profile_;
  QLabel *pnlBodyFatGender = nullptr;
  QRadioButton *optBodyFatCurrentWeight = nullptr;
  QRadioButton *optBodyFatGoalWeight = nullptr;
  NumberField *txtBodyFatGoal = nullptr;
  QLabel *lblBodyFatUOM = nullptr;
  QRadioButton *optBodyFatCurrentWaist = nullptr;
  QRadioButton *optBodyFatOtherWaist = nullptr;
  NumberField *txtBodyFatWaist = nullptr;
  QLabel *lblBodyFatUOMInches = nullptr;
  QPushButton *cmdBodyFatCalculate = nullptr;
  BodyFatBar *pnlBodyFatChart = nullptr;
  QGridLayout *results_ = nullptr;  ///< the bar above its summary
  ResultText *pnlBodyFatSummary = nullptr;
};

}  // namespace trimlog
