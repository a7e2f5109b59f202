#include "core/windows/profiles/frmEditPassword.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "core/profiles/passwords.h"
#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/ok_cancel.h"

namespace trimlog {

frmEditPassword::frmEditPassword(Session &session, const QString &personID, const QString &personName, QWidget *owner)
    : QDialog(owner), session_(session), personID_(personID) {
  setObjectName(QStringLiteral("frmEditPassword"));
  setWindowTitle(QStringLiteral("Change Password"));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);

  auto *layout = new QVBoxLayout(this);
  auto *fields = new QFormLayout;
  layout->addLayout(fields);
  fields->addRow(QStringLiteral("Profile:"), MakeLabel(QStringLiteral("lblPersonName"), personName));
  txtOldPassword = AddField(fields, QStringLiteral("txtOldPassword"), QStringLiteral("&Old password:"),
                            QStringLiteral("Old password"));
  txtNewPassword = AddField(fields, QStringLiteral("txtNewPassword"), QStringLiteral("&New password:"),
                            QStringLiteral("New password"));
  txtConfirmPassword = AddField(fields, QStringLiteral("txtConfirmPassword"), QStringLiteral("&Confirm new password:"),
                                QStringLiteral("Confirm new password"));
  AddNote(
      layout, QStringLiteral("lblNote"),
      QStringLiteral("Passwords can be a maximum of 25 characters and are not case-sensitive.  Leave the new password "
                     "empty to remove the password."));

  AddOkCancel(*this, layout, [this] { OnOk(); });
  txtOldPassword->setFocus();
}

QLineEdit *frmEditPassword::AddField(QFormLayout *fields, const QString &name, const QString &label,
                                     const QString &spoken) {
  auto *field = new QLineEdit(this);
  field->setObjectName(name);
  field->setAccessibleName(spoken);
  field->setEchoMode(QLineEdit::Password);
  field->setMaxLength(passwordLength);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * (passwordLength + 2));
  fields->addRow(label, field);
  return field;
}

void frmEditPassword::OnOk() {
  const PasswordEntry entry{txtOldPassword->text(), txtNewPassword->text(), txtConfirmPassword->text()};
  switch (ChangePassword(session_, personID_, entry)) {
    case PasswordOutcome::Changed:
      accept();
      break;
    case PasswordOutcome::WrongOld:
      txtOldPassword->setFocus();
      txtOldPassword->selectAll();
      break;
    case PasswordOutcome::NotConfirmed:
    case PasswordOutcome::SameAsOld:
      AskNewAgain();
      break;
    case PasswordOutcome::Failed:
      break;
  }
}

void frmEditPassword::AskNewAgain() {
  txtNewPassword->clear();
  txtConfirmPassword->clear();
  txtNewPassword->setFocus();
}

}  // namespace trimlog
