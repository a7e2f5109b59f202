#pragma once

#include <QWidget>
#include <array>

#include "core/session/session.h"
#include "tools/tools_profile.h"

class QFrame;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace trimlog {

class DateField;
class LeaveCheck;
class NumberField;
class ResultText;

/// The Goal Planner: when the goal is reached at a rate, or which rate a date needs. A what-if: only the method of the
/// plan, its date and its rate are kept with the profile, when the window closes.
class PlannerPage : public QWidget {
  Q_OBJECT
 public:
  PlannerPage(Session &session, const ToolsProfile &profile, QWidget *parent);

  /// Takes the goal and the plan from the profile and calculates it.
  void ShowStoredPlan();
  /// Follows the weights of the profile, which may have changed.
  void ShowWeights();
  void FocusGoal();
  /// False when a field that was typed into refuses its text; the box was shown.
  bool FieldsAccepted();
  void StorePlan();

 private:
  enum Step { GoalStep = 1, MethodStep, ResultStep };

  void AddGoalStep(QLayout *layout);
  void AddMethodStep(QLayout *layout);
  void AddStartStep(QLayout *layout);
  void AddResultStep(QLayout *layout);
  QFrame *AddStep(QLayout *layout, const QString &name, const QString &caption);
  void ConnectPrompts();

  void SetToolFields();
  void HighlightStep(Step step);
  void Calculate();
  void UpdateGoalText();
  void ShowPrompt();
  void ShowResult(const QString &text, Qt::Alignment alignment);
  GoalMethod Method() const;
  void changeEvent(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

  Session &session_;
  const ToolsProfile &profile_;
  std::array<QFrame *, 4> stepPanels_{};  ///< goal, method, start, result
  int highlighted_ = 0;
  QLabel *txtGoal1 = nullptr;
  NumberField *txtGoal = nullptr;
  QLabel *lblGoalUOM = nullptr;
  QLabel *txtGoalMethod = nullptr;
  QRadioButton *optGoalLbs = nullptr;
  NumberField *txtGoalMethodLbsWeek = nullptr;
  QLabel *lblGoalMethodLbsWeek2 = nullptr;
  QRadioButton *optGoalDate = nullptr;
  QLabel *lblGoalMethodDate = nullptr;
  DateField *txtGoalMethodDate = nullptr;
  QWidget *cmdCalendar = nullptr;
  QRadioButton *optInitialWeight = nullptr;
  QRadioButton *optCurrentWeight = nullptr;
  QPushButton *cmdCalculate = nullptr;
  ResultText *txtGoalConstraint = nullptr;
  std::array<LeaveCheck *, 3> checks_{};
};

}  // namespace trimlog
