#include "core/windows/frame/frmSplash.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "core/session/about.h"
#include "core/session/failure_guard.h"
#include "core/session/product.h"
#include "core/session/system_services.h"
#include "core/windows/controls/art.h"

namespace trimlog {

namespace {

constexpr int splashMilliseconds = 3000;

QLabel *AddText(QBoxLayout *layout, const QString &name, const QString &text, bool strong) {
  auto *label = new QLabel(text, layout->parentWidget());
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  if (strong) {
    QFont font = label->font();
    font.setWeight(
        QFont::DemiBold);  // as the figures of the main window, so that no font is loaded for the splash alone
    label->setFont(font);
  }
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
    auto *below = new QVBoxLayout;
    const QStyle *look = style();
    below->setContentsMargins(
        look->pixelMetric(QStyle::PM_LayoutLeftMargin), look->pixelMetric(QStyle::PM_LayoutTopMargin),
        look->pixelMetric(QStyle::PM_LayoutRightMargin), look->pixelMetric(QStyle::PM_LayoutBottomMargin));
    below->addWidget(BuildFacts());
    below->addSpacing(look->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    below->addWidget(BuildButtons());
    layout->addLayout(below);
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

QWidget *frmSplash::BuildFacts() {
  auto *facts = new QWidget(this);
  auto *rows = new QFormLayout(facts);
  rows->setContentsMargins(0, 0, 0, 0);
  GuardedQuietly([&] {
    for (const AboutFact &fact : AboutFacts(session_)) {
      auto *value = new QLabel(fact.value, facts);
      value->setObjectName(QStringLiteral("lbl") + QString(fact.label).remove(u' '));
      value->setTextFormat(Qt::PlainText);
      value->setWordWrap(true);
      value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
      rows->addRow(fact.label + u':', value);
    }
  });
  return facts;
}

QWidget *frmSplash::BuildButtons() {
  auto *buttons = new QDialogButtonBox(this);
  auto *cmdCopy = new QPushButton(QStringLiteral("&Copy"), buttons);
  cmdCopy->setObjectName(QStringLiteral("cmdCopy"));
  cmdCopy->setToolTip(QStringLiteral("Copies the version and what else a report of a problem should tell."));
  cmdCopy->setAutoDefault(false);
  auto *cmdSysInfo = new QPushButton(QStringLiteral("&System Info..."), buttons);
  cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
  cmdSysInfo->setAutoDefault(false);
  auto *cmdOK = new QPushButton(QStringLiteral("OK"), buttons);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  buttons->addButton(cmdCopy, QDialogButtonBox::ActionRole);
  buttons->addButton(cmdSysInfo, QDialogButtonBox::ActionRole);
  buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCopy, &QPushButton::clicked, this, [this, cmdCopy] {
    QApplication::clipboard()->setText(AboutDetails(session_));
    cmdCopy->setText(QStringLiteral("&Copied"));
  });
  connect(cmdSysInfo, &QPushButton::clicked, this, [this] { StartSysInfo(session_, system_); });
  return buttons;
}

}  // namespace trimlog
