#pragma once

#include <QWidget>

#include "core/session/session.h"

namespace trimlog {

class FigureField;
class GoalProgress;

/// The statistics panel along the top of the main window: who, the goal, and how far it is. Marks the sample profiles.
class frmMain1 : public QWidget {
  Q_OBJECT
 public:
  explicit frmMain1(Session &session, QWidget *parent = nullptr);
  /// Reads everything afresh: profile, statistics, units, colour.
  void Refresh();

 Q_SIGNALS:
  void OwnProfileWanted();  ///< away from a sample

 protected:
  void changeEvent(QEvent *event) override;

 private:
  FigureField *AddFigure(const QString &name, const QString &label, const QString &tip);
  QWidget *MakeSampleMark();
  void ShowPerson();
  void ShowStatistics();
  void ShowUnits();

  Session &session_;
  int columns_ = 0;
  FigureField *txtPersonName = nullptr;
  FigureField *txtGoal = nullptr;
  FigureField *txtLbsLost = nullptr;
  FigureField *txtLbsPerWeek = nullptr;
  FigureField *txtLbsLeft = nullptr;
  FigureField *txtDaysLeft = nullptr;
  FigureField *txtProjDate = nullptr;
  GoalProgress *progress_ = nullptr;
  QWidget *pnlSample = nullptr;
};

}  // namespace trimlog
