#include "weightlog/windows/frmReward.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "core/data/data_access.h"
#include "core/session/session.h"
#include "core/windows/controls/art.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

namespace {

QLabel *AddLine(QVBoxLayout &layout, const char *name, const QString &text, double share, bool bold) {
  auto *label = new QLabel(text);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  QFont font = label->font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * share);
  font.setBold(bold);
  label->setFont(font);
  label->setVisible(!text.isEmpty());
  layout.addWidget(label);
  return label;
}

}  // namespace

frmReward::frmReward(Session &session, const RewardNotice &notice, QWidget *owner)
    : QDialog(owner), session_(session), sound_(notice.sound) {
  setObjectName(QStringLiteral("frmReward"));
  setWindowTitle(notice.title);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(spacing::roomy, spacing::roomy, spacing::roomy, spacing::apart);
  auto *picture = new QLabel(this);
  const int side = fontMetrics().height() * 3;
  picture->setPixmap(ArtIcon(QStringLiteral("star")).pixmap(side, side));
  picture->setAlignment(Qt::AlignCenter);
  layout->addWidget(picture);
  const QString personName = GetDataValue(session.Data(), QStringLiteral("PersonName"), QStringLiteral("people"),
                                          QStringLiteral("PersonID=?"), {}, {session.profile.CurrentPersonID.toInt()});
  AddLine(*layout, "lblPersonName", personName, 1.5, true);
  AddLine(*layout, "lblRewardMessage", notice.message, 1.2, false);
  AddLine(*layout, "lblRewardLost", notice.text, 1.2, true);
  AddLine(*layout, "lblLbsLeft", RewardDistanceText(session), 1.0, false);
  auto *cmdOK = new QPushButton(tr("OK"), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  layout->addSpacing(spacing::between);
  layout->addWidget(cmdOK, 0, Qt::AlignHCenter);
  setMinimumWidth(fontMetrics().averageCharWidth() * 56);
}

void frmReward::showEvent(QShowEvent *event) {
  QDialog::showEvent(event);
  // Once the window can be seen, not before.
  QTimer::singleShot(0, this, [this] { session_.machine.PlaySound(sound_); });
}

}  // namespace trimlog
