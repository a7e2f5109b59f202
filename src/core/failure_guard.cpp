#include "core/failure_guard.h"

#include <exception>

#include "platform/error.h"

namespace trimlog {

namespace {

/// Runs the work; the description of the failure, or nothing when it went well.
std::optional<QString> FailureOf(const std::function<void()> &work) {
  try {
    work();
    return std::nullopt;
  } catch (const Error &error) {
    return error.Description();
  } catch (const std::exception &error) {
    return QString::fromUtf8(error.what());
  }
}

}  // namespace

bool Guarded(Session &session, const FailureExit &exit, const std::function<void()> &work) {
  const std::optional<QString> failure = FailureOf(work);
  if (!failure) return true;
  // Logged before the box: a box left standing must not lose the line.
  LogError(session, exit.module, exit.procedure, exit.logMessage ? exit.logMessage(*failure) : *failure);
  if (!exit.text.isEmpty()) {
    session.boxes.Critical(exit.title, exit.appendDescription ? exit.text + *failure : exit.text);
  }
  return false;
}

bool GuardedQuietly(const std::function<void()> &work) { return !FailureOf(work).has_value(); }

}  // namespace trimlog
