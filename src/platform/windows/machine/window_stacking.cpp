#include "platform/windows/machine/window_stacking.h"

#include <QWidget>

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

void RaiseWindow(QWidget *window) {
  window->setWindowState((window->windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace trimlog
