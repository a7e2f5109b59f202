#include "platform/windows/printing/print_progress.h"

#include <QGuiApplication>
#include <QLabel>

namespace trimlog {

namespace {

constexpr int stagePercent = 100;
constexpr int longMilliseconds = 400;

}  // namespace

frmPrintGrids::frmPrintGrids(const QString &title, QWidget *owner)
    : QProgressDialog(title, tr("Cancel"), 0, 3 * stagePercent, owner) {
  setObjectName(QStringLiteral("frmPrintGrids"));
  setWindowTitle(tr("Printing..."));
  setWindowModality(Qt::ApplicationModal);
  setMinimumDuration(longMilliseconds);
  setAutoClose(false);
  setAutoReset(false);
  for (QLabel *label : findChildren<QLabel *>()) label->setTextFormat(Qt::PlainText);  // it holds a person's name
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

frmPrintGrids::~frmPrintGrids() { QGuiApplication::restoreOverrideCursor(); }

void frmPrintGrids::showEvent(QShowEvent *event) {
  QProgressDialog::showEvent(event);
  QGuiApplication::changeOverrideCursor(Qt::BusyCursor);  // it works, and there is something to click
}

void frmPrintGrids::Reached(PrintStage stage, int done, int total) {
  const int value = stagePercent * static_cast<int>(stage) + (total > 0 ? stagePercent * done / total : stagePercent);
  if (value != this->value()) setValue(value);
  if (wasCanceled()) throw PrintingCancelled();
}

}  // namespace trimlog
