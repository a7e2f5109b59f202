#pragma once

#include <QDialog>
#include <QList>

class QRadioButton;

namespace trimlog {

class Session;

/// Asks whether the nutrients of an entry follow its new servings. Yes and No answer for this change only; the choice
/// of how to go on from now on is kept however the window is closed.
class frmConfirmMealUpdates : public QDialog {
  Q_OBJECT
 public:
  frmConfirmMealUpdates(Session &session, QWidget *owner);

  void done(int result) override;

 private:
  Session &session_;
  QList<QRadioButton *> options_;  ///< by the value of the setting
};

/// True for Yes.
bool ConfirmMealUpdates(Session &session, QWidget *owner);

}  // namespace trimlog
