#pragma once

#include <QDialog>

#include "weightlog/rewards.h"

namespace trimlog {

class Session;

/// The congratulation. Run it with exec(); it plays the notice's sound once it is on the screen.
class frmReward : public QDialog {
  Q_OBJECT
 public:
  frmReward(Session &session, const RewardNotice &notice, QWidget *owner);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  Session &session_;
  const QString sound_;
};

}  // namespace trimlog
