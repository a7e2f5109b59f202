#pragma once

#include <QDialog>
#include <QString>

#include "core/session/session.h"

class QComboBox;
class QFormLayout;
class QLineEdit;

namespace trimlog {

/// Runs the password check of a profile: true when it may be shown. A profile without a password and a sample pass
/// unseen; Cancel, Esc and the close button refuse. `atStartup` lets the person choose another profile: then
/// session.profile.CurrentPersonID and LastRealPersonID are the chosen one, and the caller applies it (ApplyProfile).
bool CheckProfilePassword(Session &session, const QString &personID, bool atStartup, QWidget *owner);

/// Asks for a profile's password; at start with a list of all profiles.
class frmPassword : public QDialog {
  Q_OBJECT
 public:
  frmPassword(Session &session, const QString &personID, bool atStartup, QWidget *owner);

 protected:
  bool event(QEvent *event) override;

 private:
  void AddProfile(QFormLayout *fields);
  QString SelectedPersonID() const;
  void OnOk();

  Session &session_;
  const QString personID_;
  const bool atStartup_;
  QComboBox *cboPassword = nullptr;
  QLineEdit *txtPassword = nullptr;
};

}  // namespace trimlog
