#include "core/session/print.h"

#include "core/session/failure_guard.h"

namespace trimlog {

bool Print(Session &session, const QString &module, const QString &procedure,
           const std::function<bool(Printing &printing)> &work) {
  const FailureExit failure{
      module, procedure, QStringLiteral("Printer Error"),
      QStringLiteral("An error occurred while printing to your default printer.  Unable to print at this time.")};
  bool printed = false;
  return Guarded(session, failure, [&] { printed = work(session.printing); }) && printed;
}

}  // namespace trimlog
