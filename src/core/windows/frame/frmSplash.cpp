#include "core/windows/frame/frmSplash.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "core/session/product.h"
#include "core/session/system_services.h"
#include "core/windows/controls/art.h"

namespace trimlog {

namespace {

constexpr int splashMilliseconds = 3000;

QLabel *AddText(QBoxLayout *layout, const QString &name, const QString &text, bool bold) {
  auto *label = new QLabel(text, layout->parentWidget());
  label->setObjectName(name);
  QFont font = label->font();
  font.setBold(bold);
  label->setFont(font);
  layout->addWidget(label);
  return label;
}

}  // namespace

frmSplash::frmSplash(Session &session, const OperatingSystem &system, bool AboutMode, QWidget *owner)
    : QDialog(owner, AboutMode ? Qt::Dialog : Qt::SplashScreen | Qt::FramelessWindowHint),
      session_(session),
      system_(system) {
  setObjectName(QStringLiteral("frmSplash"));
  setWindowTitle(QStringLiteral("About Trimlog Pro"));
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(BuildPicture());

  auto *Timer1 = new QTimer(this);
  Timer1->setObjectName(QStringLiteral("Timer1"));
  Timer1->setInterval(splashMilliseconds);
  Timer1->setSingleShot(true);
  connect(Timer1, &QTimer::timeout, this, &QWidget::close);
  if (AboutMode) {
    layout->addWidget(BuildButtons());
  } else {
    Timer1->start();
  }
}

QWidget *frmSplash::BuildPicture() {
  auto *picture = new QLabel(this);
  picture->setObjectName(QStringLiteral("imgSplash"));
  picture->setAccessibleName(product::name);
  const QPixmap sponsor = session_.edition.SeravaEdition
                              ? QPixmap(session_.programDirectory + QStringLiteral("/splash_serava.jpg"))
                              : QPixmap();
  picture->setPixmap(sponsor.isNull() ? SplashPicture(devicePixelRatioF()) : sponsor);
  QPalette onPicture;
  onPicture.setColor(QPalette::WindowText, Qt::white);
  picture->setPalette(onPicture);

  auto *text = new QVBoxLayout(picture);
  text->setContentsMargins(24, 62, 24, 14);
  text->setSpacing(0);
  if (session_.edition.SeravaEdition) {
    AddText(text, QStringLiteral("lblEdition"), QStringLiteral("SERAVA® Edition"), true);
  }
  text->addStretch(1);
  AddText(text, QStringLiteral("lblVersion"), QStringLiteral("Version: %1").arg(product::version), false);
  AddText(text, QStringLiteral("lblUserName"), session_.settings.UserName, true);
  return picture;
}

QWidget *frmSplash::BuildButtons() {
  auto *buttons = new QDialogButtonBox(this);
  buttons->setContentsMargins(10, 4, 10, 10);
  auto *cmdSysInfo = new QPushButton(ArtIcon(QStringLiteral("info")), QStringLiteral("&System Info..."), buttons);
  cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
  auto *cmdOK = new QPushButton(ArtIcon(QStringLiteral("ok")), QStringLiteral("OK"), buttons);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  buttons->addButton(cmdSysInfo, QDialogButtonBox::ActionRole);
  buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdSysInfo, &QPushButton::clicked, this, [this] { StartSysInfo(session_, system_); });
  return buttons;
}

}  // namespace trimlog
