#include "core/session/failure_guard.h"

#include <exception>

#include "platform/error.h"

namespace trimlog {

namespace {

/// Who must act for the next save to succeed is told how, whatever the box.
QString BoxText(const FailureExit &exit, const Failure &failure) {
  if (exit.appendDescription) return exit.text + failure.description;
  return failure.number == error_number::fileMoved ? exit.text + QStringLiteral("\n\n") + failure.description
                                                   : exit.text;
}

}  // namespace

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
  if (!exit.text.isEmpty()) session.boxes.Critical(exit.title, BoxText(exit, *failure));
  return false;
}

bool GuardedQuietly(const std::function<void()> &work) { return !FailureOf(work).has_value(); }

}  // namespace trimlog
