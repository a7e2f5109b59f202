#pragma once

#include <QModelIndex>

#include "core/windows/setup/setup_page.h"

class QPushButton;

namespace trimlog {

class BoundGrid;

/// The list of profiles. What is changed here is saved at once, whatever button closes the window.
class SetupProfilesPage : public SetupPage {
  Q_OBJECT
 public:
  SetupProfilesPage(Session &session, const Navigator &navigator, QWidget *parent);
  void Load(const Settings &settings) override;
  /// Saves the row being typed, and asks about a goal that is none.
  bool Validate() override;
  void ShowUnits(int uomID) override;

 private:
  void SetHooks();
  void UpdateButtons();
  void OnNewProfile();
  void OnPassword();
  /// The loaded profile may be among the deleted ones.
  void Deleted();
  QModelIndex GoalCell() const;  ///< of the current row

  Session &session_;
  const Navigator &navigator_;
  int uomID_ = 1;  ///< the unit system that the window shows
  BoundGrid *grdPeople = nullptr;
  QPushButton *cmdNewProfile = nullptr;
  QPushButton *cmdDeleteProfile = nullptr;
  QPushButton *cmdPassword = nullptr;
};

}  // namespace trimlog
