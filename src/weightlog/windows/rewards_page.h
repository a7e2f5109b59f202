#pragma once

#include "core/windows/setup/setup_page.h"
#include "weightlog/reward_form.h"

class QButtonGroup;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace trimlog {

class NumberField;

/// The reward rule of the loaded profile.
class RewardsPage : public SetupPage {
  Q_OBJECT
 public:
  RewardsPage(Session &session, QWidget *parent);
  void Load(const Settings &settings) override;
  bool Validate() override;
  bool Save() override;
  void ShowUnits(int uomID) override;

 private:
  struct AmountRow {
    NumberField *field = nullptr;
    QLabel *unit = nullptr;
  };
  QWidget *MakeRuleGroup();
  QWidget *MakeNoticeGroup();
  AmountRow AddAmount(QGridLayout *grid, RewardType type, const QString &kind, const QString &caption,
                      const QString &spoken);
  AmountRow *RowOf(RewardType type);
  RewardType ChosenType() const;
  RewardForm Form() const;
  void Show(const RewardForm &form);
  void ShowProfile();
  void OnChosen(RewardType type);
  void OnBrowse();
  void OnTest();
  void UpdateFields();

  Session &session_;
  QString personID_;  ///< whose rule is shown
  int uomID_ = 0;     ///< the unit system shown; 0 before the first
  QGroupBox *fraRewards = nullptr;
  QLabel *pnlRewardNote = nullptr;
  QButtonGroup *options_ = nullptr;
  AmountRow daily_;
  AmountRow weekly_;
  AmountRow weight_;
  QLineEdit *txtRewardMessage = nullptr;
  QLineEdit *txtRewardSound = nullptr;
  QPushButton *cmdTest = nullptr;
};

/// The rewards tab for the options window.
SetupPageMaker RewardsTab();

}  // namespace trimlog
