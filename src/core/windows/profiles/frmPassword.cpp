#include "core/windows/profiles/frmPassword.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "core/data/data_access.h"
#include "core/profiles/passwords.h"
#include "core/profiles/profiles.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/ok_cancel.h"

namespace trimlog {

namespace {

constexpr int messageWidth = 360;

QString ProfileName(Session &session, const QString &personID) {
  for (const ProfileEntry &profile : FillProfilesArray(session)) {
    if (profile.PersonID == personID) return profile.PersonName;
  }
  return {};
}

QComboBox *MakeProfileList(Session &session, const QString &personID, QWidget *parent) {
  auto *list = new QComboBox(parent);
  list->setObjectName(QStringLiteral("cboPassword"));
  list->setAccessibleName(QStringLiteral("Profile"));
  for (const ProfileEntry &profile : FillProfilesArray(session)) list->addItem(profile.PersonName, profile.PersonID);
  list->setCurrentIndex(list->findData(personID));
  return list;
}

}  // namespace

bool CheckProfilePassword(Session &session, const QString &personID, bool atStartup, QWidget *owner) {
  if (personID.toInt() <= 0 || StoredPassword(session, personID).isEmpty()) return true;
  return frmPassword(session, personID, atStartup, owner).exec() == QDialog::Accepted;
}

frmPassword::frmPassword(Session &session, const QString &personID, bool atStartup, QWidget *owner)
    : QDialog(owner), session_(session), personID_(personID), atStartup_(atStartup) {
  setObjectName(QStringLiteral("frmPassword"));
  setWindowTitle(QStringLiteral("Enter Password"));
  setWindowFlag(Qt::WindowStaysOnTopHint);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);

  auto *layout = new QVBoxLayout(this);
  AddNote(layout, QStringLiteral("lblMessage"),
          atStartup
              ? QStringLiteral("Please choose a profile from the list and enter the password (if any).  Click <OK> "
                               "to continue or <Cancel> to load a sample profile instead.")
              : QStringLiteral("This profile is protected by a password."))
      ->setMinimumWidth(messageWidth);
  auto *fields = new QFormLayout;
  layout->addLayout(fields);
  AddProfile(fields);

  txtPassword = new QLineEdit(this);
  txtPassword->setObjectName(QStringLiteral("txtPassword"));
  txtPassword->setAccessibleName(QStringLiteral("Password"));
  txtPassword->setEchoMode(QLineEdit::Password);
  txtPassword->setMaxLength(passwordLength);
  fields->addRow(QStringLiteral("Pass&word:"), txtPassword);

  AddOkCancel(*this, layout, [this] { OnOk(); });
  txtPassword->setFocus();
}

void frmPassword::AddProfile(QFormLayout *fields) {
  cboPassword = MakeProfileList(session_, personID_, this);
  cboPassword->setVisible(atStartup_);
  if (atStartup_) {
    connect(cboPassword, &QComboBox::activated, this, [this] { txtPassword->clear(); });
    fields->addRow(QStringLiteral("&Profile:"), cboPassword);
    return;
  }
  fields->addRow(QStringLiteral("Profile:"),
                 MakeLabel(QStringLiteral("lblPersonName"), ProfileName(session_, personID_)));
}

QString frmPassword::SelectedPersonID() const { return atStartup_ ? cboPassword->currentData().toString() : personID_; }

bool frmPassword::event(QEvent *event) {
  // A profile without a password asks for nothing: its choice is the sign-in.
  if (event->type() == QEvent::WindowActivate && atStartup_ && StoredPassword(session_, SelectedPersonID()).isEmpty()) {
    QTimer::singleShot(0, this, &frmPassword::OnOk);
  }
  return QDialog::event(event);
}

void frmPassword::OnOk() {
  const QString personID = SelectedPersonID();
  if (!AcceptPassword(session_, personID, txtPassword->text())) {
    txtPassword->clear();
    txtPassword->setFocus();
    return;
  }
  if (atStartup_) {
    session_.profile.CurrentPersonID = personID;
    session_.profile.LastRealPersonID = personID;
  }
  accept();
}

}  // namespace trimlog
