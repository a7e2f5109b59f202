#include "core/windows/print_window.h"

#include "core/failure_guard.h"
#include "core/windows/frmMDI.h"

namespace trimlog {

void PrintCurrentWindow(Session &session, frmMDI &frame) {
  const QString title = QStringLiteral("Print Window?");
  if (!session.boxes.Ask(title, QStringLiteral("Print the currently displayed window to your default printer?")))
    return;
  session.boxes.Plain(
      title, QStringLiteral("Note: After clicking OK, there will be a momentary delay while your printer processes the "
                            "data, and then the page will be printed.  This is completely normal."));
  const FailureExit failure{
      QStringLiteral("basPrinting"), QStringLiteral("PrintWindow"), QStringLiteral("Printer Error"),
      QStringLiteral("An error occurred while printing to your default printer.  Unable to print at "
                     "this time.")};
  ContentWindow *form = frame.CurrentForm();
  if (!form) return;
  form->PrepareForPrinting(true);
  form->PrepareForPrinting(false);
}

}  // namespace trimlog
