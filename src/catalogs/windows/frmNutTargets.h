#pragma once

#include <QDialog>

#include "catalogs/target_sets.h"
#include "core/session/navigator.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace trimlog {

class NutrientFields;

/// The sets of daily targets, and which of them the profile's days are held against. txtTarget(n) is the target of
/// nutrient n.
class frmNutTargets : public QDialog {
  Q_OBJECT
 public:
  /// Reads the sets; throws when it cannot.
  frmNutTargets(Session &session, const Navigator &navigator, QWidget *owner);

  /// Closing stores the targets shown and the chosen set. A target that is refused keeps the window open.
  void done(int result) override;

 private:
  void AddChoice(QVBoxLayout *layout);
  void AddFields(QVBoxLayout *layout);
  void AddButtons(QVBoxLayout *layout);
  QPushButton *AddButton(QHBoxLayout *row, const QString &name, const QString &caption, const QString &tip);
  void FillSets();
  void Select(int targetID);
  void ShowTargets(int targetID);
  void OnChosen();
  void OnNew();
  void OnDelete();
  void OnFieldLeft(int nutrientID);
  TargetTexts Typed() const;
  bool CheckTargets();
  bool SaveTargets();

  Session &session_;
  const Navigator &navigator_;
  QLabel *pnlNutTargetID = nullptr;
  QComboBox *cboNutTargetID = nullptr;
  NutrientFields *fields_ = nullptr;
  QPushButton *cmdDeleteTarget = nullptr;
  int shown_ = noTargetSet;
  TargetTexts stored_;
  bool edited_ = false;
};

/// Shows the window until it is closed; a box says when it could not be read.
void OpenNutTargets(Session &session, const Navigator &navigator, QWidget *owner);

}  // namespace trimlog
