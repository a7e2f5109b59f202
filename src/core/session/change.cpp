#include "core/session/change.h"

#include <utility>

#include "core/session/failure_guard.h"

namespace trimlog {

namespace {

void WorkAfterCommit(Session &session, std::function<void()> work) {
  session.Data().AfterCommit([&session, work = std::move(work)] {
    if (const std::optional<Failure> failure = FailureOf(work)) {
      LogError(session, QStringLiteral("Change"), QStringLiteral("Commit"), failure->description);
    }
  });
}

}  // namespace

Change::Change(Session &session, const void *origin)
    : session_(session), outerOrigin_(session.changes.origin_), transaction_(session.Data()) {
  if (origin) session_.changes.origin_ = origin;
}

Change::~Change() { session_.changes.origin_ = outerOrigin_; }

void AnnounceAfterCommit(Session &session, DataChange change) {
  WorkAfterCommit(session,
                  [&changes = session.changes, change = std::move(change)] { Q_EMIT changes.Changed(change); });
}

void Change::Announce(DataChange change) {
  if (!change.origin) change.origin = session_.changes.origin_;
  AnnounceAfterCommit(session_, std::move(change));
}

void Change::Afterwards(std::function<void()> work) { WorkAfterCommit(session_, std::move(work)); }

void Change::Commit() {
  session_.changes.origin_ = outerOrigin_;  // who hears of it and writes acts for itself
  transaction_.Commit();
}

}  // namespace trimlog
