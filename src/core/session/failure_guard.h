#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "core/session/error_log.h"
#include "core/session/session.h"

namespace trimlog {

/// The one failure exit of a business procedure: who it is, and the box that a failure shows. An empty text shows no
/// box. A data file that was moved away is told in every box, with what to do about it.
struct FailureExit {
  QString module;
  QString procedure;
  QString title;
  QString text;
  bool appendDescription = false;  ///< the error's description follows the text
  /// Makes the log's message of the error's description, where the log tells more than that.
  std::function<QString(const QString &description)> logMessage = {};
};

struct Failure {
  int number = 0;  ///< of error_number; `other` for a failure from outside the error family
  QString description;
};

/// Runs the work and gives its failure, or nothing when it went well. For the few that decide by the number.
std::optional<Failure> FailureOf(const std::function<void()> &work);

/// Runs the work. On any failure: logs the description, shows the critical box, returns false.
bool Guarded(Session &session, const FailureExit &exit, const std::function<void()> &work);

/// For procedures that only update the display: a failure is ignored and the procedure left. Returns false then.
bool GuardedQuietly(const std::function<void()> &work);

}  // namespace trimlog
