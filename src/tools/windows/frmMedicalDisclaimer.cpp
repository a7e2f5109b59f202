#include "tools/windows/frmMedicalDisclaimer.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/ok_cancel.h"
#include "tools/tool_notices.h"

namespace trimlog {

frmMedicalDisclaimer::frmMedicalDisclaimer(Session &session, QWidget *parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmMedicalDisclaimer"));
  setWindowTitle(medicalDisclaimerTitle);
  auto *layout = new QVBoxLayout(this);

  auto *top = new QHBoxLayout;
  layout->addLayout(top, 1);
  auto *picture = new QLabel(this);
  const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  picture->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, this).pixmap(side, side));
  top->addWidget(picture, 0, Qt::AlignTop);
  QLabel *text = AddNote(top, QStringLiteral("lblDisclaimer"), MedicalDisclaimerText());
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * 60);

  QCheckBox *chkDisplay =
      AddCheck(layout, QStringLiteral("chkDisplay"), QStringLiteral(" Do not display this message again."));
  chkDisplay->setChecked(true);
  AddOkCancel(
      *this, layout, [this] { accept(); }, QDialogButtonBox::Ok)
      ->button(QDialogButtonBox::Ok)
      ->setFocus();
  connect(this, &QDialog::finished, this, [&session, chkDisplay] {
    session.settings.MedicalDisclaimer = chkDisplay->isChecked();
    SaveSetting(session.settings, session.store, QStringLiteral("MedicalDisclaimer"));
  });
}

}  // namespace trimlog
