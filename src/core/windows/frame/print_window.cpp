#include "core/windows/frame/print_window.h"

#include <QScopeGuard>

#include "core/session/failure_guard.h"
#include "platform/windows/printing/window_printer.h"

namespace trimlog {

void PrintForm(Session &session, ContentWindow &form, PageOutput *output) {
  const FailureExit failure{
      QStringLiteral("basPrinting"), QStringLiteral("PrintWindow"), QStringLiteral("Printer Error"),
      QStringLiteral("An error occurred while printing to your default printer.  Unable to print at this time.")};
  Guarded(session, failure, [&] {
    form.PrepareForPrinting(true);
    const auto dressedAgain = qScopeGuard([&form] { form.PrepareForPrinting(false); });
    PrintWindow(form, session.boxes, output);
  });
}

void PrintCurrentWindow(Session &session, ContentWindow &form, PageOutput *output) {
  if (!session.boxes.Ask(QStringLiteral("Print Window?"),
                         QStringLiteral("Print the currently displayed window to your default printer?"))) {
    return;
  }
  session.boxes.Plain(
      QStringLiteral("Print Window?"),
      QStringLiteral("Note: After clicking OK, there will be a momentary delay while your printer processes the data, "
                     "and then the page will be printed.  This is completely normal."));
  PrintForm(session, form, output);
}

}  // namespace trimlog
