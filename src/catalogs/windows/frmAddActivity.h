#pragma once

#include <QDialog>

#include "catalogs/exercise_picking.h"
#include "core/session/navigator.h"
#include "journal/day/journal_doors.h"

class QCheckBox;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace trimlog {

class BoundGrid;
class DateField;
class NumberField;
class SpokenLabel;

/// Adds an exercise of the list to a day that was or is planned. Letters find the exercise, Enter adds it, Esc leaves
/// everything as it is.
class frmAddActivity : public QDialog {
  Q_OBJECT
 public:
  /// What `opening` refers to must outlive the dialog.
  frmAddActivity(Session &session, const Navigator &navigator, const EntryOpening &opening, QWidget *owner);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void AddList(QVBoxLayout *layout);
  void AddFields(QVBoxLayout *layout);
  void AddButtons(QVBoxLayout *layout);
  void OnRow();
  void ShowBurned();
  void MendMinutes();
  void OnNew();
  void OnOk();
  bool CheckDate();
  ExercisePicked Picked() const;

  Session &session_;
  const Navigator &navigator_;
  const EntryOpening opening_;
  BoundGrid *grdActivitiesList = nullptr;
  DateField *txtDate = nullptr;
  NumberField *txtMinutes = nullptr;
  SpokenLabel *lblBurned = nullptr;
  QCheckBox *chkRecalcCalories = nullptr;
  QPushButton *cmdNewActivity = nullptr;
  QPushButton *cmdOK = nullptr;
};

}  // namespace trimlog
