#pragma once

#include <QDialog>
#include <QString>

#include "core/session/session.h"

class QFormLayout;
class QLineEdit;

namespace trimlog {

/// Changes or removes the password of one profile.
class frmEditPassword : public QDialog {
  Q_OBJECT
 public:
  frmEditPassword(Session &session, const QString &personID, const QString &personName, QWidget *owner);

 private:
  QLineEdit *AddField(QFormLayout *fields, const QString &name, const QString &label, const QString &spoken);
  void OnOk();
  void AskNewAgain();

  Session &session_;
  const QString personID_;
  QLineEdit *txtOldPassword = nullptr;
  QLineEdit *txtNewPassword = nullptr;
  QLineEdit *txtConfirmPassword = nullptr;
};

}  // namespace trimlog
