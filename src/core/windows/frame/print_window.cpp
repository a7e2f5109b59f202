#include "core/windows/frame/print_window.h"

#include <QScopeGuard>

#include "core/session/print.h"

namespace trimlog {

void PrintForm(Session &session, ContentWindow &form) {
  Print(session, QStringLiteral("basPrinting"), QStringLiteral("PrintWindow"), [&form](Printing &printing) {
    form.PrepareForPrinting(true);
    const auto dressedAgain = qScopeGuard([&form] { form.PrepareForPrinting(false); });
    return printing.PrintPicture(form);
  });
}

void PrintCurrentWindow(Session &session, ContentWindow &form) {
  if (!session.boxes.Ask(QStringLiteral("Print Window?"),
                         QStringLiteral("Print the currently displayed window to your default printer?"))) {
    return;
  }
  session.boxes.Plain(
      QStringLiteral("Print Window?"),
      QStringLiteral("Note: After clicking OK, there will be a momentary delay while your printer processes the data, "
                     "and then the page will be printed.  This is completely normal."));
  PrintForm(session, form);
}

}  // namespace trimlog
