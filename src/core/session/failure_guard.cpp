#include "core/session/failure_guard.h"

#include <exception>

#include "platform/error.h"

namespace trimlog {

std::optional<Failure> FailureOf(const std::function<void()> &work) {
  try {
    work();
    return std::nullopt;
  } catch (const Error &error) {
    return Failure{error.Number(), error.Description()};
  } catch (const std::exception &error) {
    return Failure{error_number::other, QString::fromUtf8(error.what())};
  }
}

bool Guarded(Session &session, const FailureExit &exit, const std::function<void()> &work) {
  const std::optional<Failure> failure = FailureOf(work);
  if (!failure) return true;
  // Logged before the box: a box left standing must not lose the line.
  LogError(session, exit.module, exit.procedure,
           exit.logMessage ? exit.logMessage(failure->description) : failure->description);
  if (!exit.text.isEmpty()) {
    session.boxes.Critical(exit.title, exit.appendDescription ? exit.text + failure->description : exit.text);
  }
  return false;
}

bool GuardedQuietly(const std::function<void()> &work) { return !FailureOf(work).has_value(); }

}  // namespace trimlog
