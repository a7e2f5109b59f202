#include "platform/windows/machine/window_stacking.h"

#include <QApplication>
#include <QDialog>

namespace trimlog {

namespace {

void KeepOnTop(QWidget *window, bool on) {
  if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == on) return;
  const bool visible = window->isVisible();
  window->setWindowFlag(Qt::WindowStaysOnTopHint, on);  // hides the window
  if (visible) window->show();
}

}  // namespace

void MakeTopMost(QWidget *window) { KeepOnTop(window, true); }
void MakeNormal(QWidget *window) { KeepOnTop(window, false); }

void CloseModalWindows() {
  while (QWidget *popup = QApplication::activePopupWidget()) popup->hide();
  while (QWidget *modal = QApplication::activeModalWidget()) {
    if (modal->close() && modal != QApplication::activeModalWidget()) continue;
    // A question without a Cancel, for example, cannot be closed.
    if (auto *dialog = qobject_cast<QDialog *>(modal)) {
      dialog->QDialog::done(QDialog::Rejected);
    } else {
      modal->hide();
    }
  }
}

void RaiseWindow(QWidget *window) {
  window->setWindowState((window->windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace trimlog
