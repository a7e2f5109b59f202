#pragma once

#include <QWidget>

#include "core/session/session.h"
#include "tools/caloric_needs.h"
#include "tools/tools_profile.h"

class QLabel;
class QLayout;
class QRadioButton;

namespace trimlog {

class ActivityChart;
class NumberField;
class ResultText;

/// The Caloric Needs Estimator: the basal metabolic rate, and what three levels of activity make of it.
class CaloricNeedsPage : public QWidget {
  Q_OBJECT
 public:
  CaloricNeedsPage(Session &session, const ToolsProfile &profile, QWidget *parent);

  /// Fills the fields that start from the profile: age and goal weight.
  void FillFields();
  /// Shows what is taken from the profile.
  void ShowBMRTool();
  void ClearBMRResults();

 private:
  void AddInputs(QLayout *layout);
  void AddResults(QLayout *layout);
  void SetToolFields();
  void StartOver();
  void Calculate();
  void UpdateBMRSummary();
  bool eventFilter(QObject *watched, QEvent *event) override;

  Session &session_;
  const ToolsProfile &profile_;
  CaloricNeeds needs_;
  QLabel *pnlBMRGender = nullptr;
  QLabel *pnlBMRHeight = nullptr;
  QRadioButton *optBMRCurrentWeight = nullptr;
  QRadioButton *optBMRGoalWeight = nullptr;
  NumberField *txtBMRGoal = nullptr;
  QLabel *pnlBMRUOM = nullptr;
  QRadioButton *optBMRCurrentAge = nullptr;
  QRadioButton *optBMROtherAge = nullptr;
  NumberField *txtBMRAge = nullptr;
  QLabel *pnlBMRResults1 = nullptr;
  ResultText *pnlBMRValue = nullptr;
  QLabel *pnlBMRResults2 = nullptr;
  QLabel *pnlBMRResults3 = nullptr;
  ActivityChart *chart_ = nullptr;
  ResultText *pnlBMRSummary = nullptr;
  ResultText *note_ = nullptr;  ///< stands in the summary's place while there is none
};

}  // namespace trimlog
