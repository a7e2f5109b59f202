#pragma once

#include <QWidget>

#include "core/session/session.h"

class QLabel;
class QLineEdit;

namespace trimlog {

/// The statistics panel along the top of the main window: who, the goal, and how far it is.
class frmMain1 : public QWidget {
  Q_OBJECT
 public:
  explicit frmMain1(Session &session, QWidget *parent = nullptr);
  /// Reads everything afresh: profile, statistics, units, colour.
  void Refresh();

 private:
  void ShowPerson();
  void ShowStatistics();
  void ShowUnits();

  Session &session_;
  QLineEdit *txtPersonName = nullptr;
  QLineEdit *txtGoal = nullptr;
  QLineEdit *txtLbsLost = nullptr;
  QLineEdit *txtLbsPerWeek = nullptr;
  QLineEdit *txtLbsLeft = nullptr;
  QLineEdit *txtDaysLeft = nullptr;
  QLineEdit *txtProjDate = nullptr;
};

}  // namespace trimlog
