#pragma once

class QWidget;

namespace trimlog {

/// Keeps a window above all others, or lets it back among them. Safe before and after it is shown.
void MakeTopMost(QWidget *window);
void MakeNormal(QWidget *window);

/// Brings a window to the front, out of its minimised state if it is in one.
void RaiseWindow(QWidget *window);

/// Closes menus and modal windows from the top down, each as Esc would: it may save what is typed in it. One that
/// refuses is hidden.
void CloseModalWindows();

}  // namespace trimlog
