#include "core/windows/frame/frmMeter.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace trimlog {

frmMeter::frmMeter(const QString &title, const QString &caption, int rows, QWidget *owner)
    : QDialog(owner), rows_(rows), barPercent(new QProgressBar(this)) {
  setObjectName(QStringLiteral("frmMeter"));
  setWindowTitle(title);
  setWindowFlag(Qt::WindowCloseButtonHint, false);
  setWindowModality(Qt::ApplicationModal);
  auto *layout = new QVBoxLayout(this);
  auto *lblCaption = new QLabel(caption, this);
  lblCaption->setObjectName(QStringLiteral("lblCaption"));
  lblCaption->setTextFormat(Qt::PlainText);
  layout->addWidget(lblCaption);
  barPercent->setObjectName(QStringLiteral("barPercent"));
  barPercent->setAccessibleName(title);
  barPercent->setRange(0, rows > 0 ? 100 : 0);
  barPercent->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
  layout->addWidget(barPercent);
}

void frmMeter::SetCaption(const QString &caption) {
  findChild<QLabel *>(QStringLiteral("lblCaption"))->setText(caption);
}

int frmMeter::Percent() const { return rows_ > 0 ? static_cast<int>(100LL * std::min(done_, rows_) / rows_) : 0; }

void frmMeter::Step() {
  ++done_;
  if (rows_ <= 0 || Percent() == barPercent->value()) return;
  barPercent->setValue(Percent());
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace trimlog
