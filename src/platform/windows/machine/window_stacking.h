#pragma once

class QWidget;

namespace trimlog {

/// Keeps a window above all others, or lets it back among them. Safe before and after it is shown.
void MakeTopMost(QWidget *window);
void MakeNormal(QWidget *window);

/// Brings a window to the front, out of its minimised state if it is in one.
void RaiseWindow(QWidget *window);

}  // namespace trimlog
