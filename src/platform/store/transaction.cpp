#include <sqlite3.h>

#include <exception>
#include <utility>

#include "platform/store/data_file.h"
#include "platform/store/database_internals.h"

namespace trimlog {

namespace {

QByteArray Savepoint(const char *word, int depth) {
  return QStringLiteral("%1 t%2").arg(QLatin1StringView(word)).arg(depth).toUtf8();
}

// One failure does not keep the others from what they wait for.
void Deliver(Database::Impl &impl) {
  std::exception_ptr failure;
  for (const auto &work : std::exchange(impl.afterCommit, {})) {
    try {
      work();
    } catch (...) {
      if (!failure) failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

}  // namespace

// The outermost one is the transaction; those inside are savepoints, so that an inner one that fails takes back its own
// work only and the outer one still decides about the rest.
Transaction::Transaction(Database &database)
    : database_(database), collectedBefore_(database.Internals().afterCommit.size()) {
  Database::Impl &impl = database_.Internals();
  impl.CheckTransaction();
  if (impl.depth == 0) {
    CheckInPlace(impl.handle, impl.path);
    impl.Plain("BEGIN IMMEDIATE");
    impl.changesAtBegin = sqlite3_total_changes64(impl.handle);
  } else {
    impl.Plain(Savepoint("SAVEPOINT", impl.depth).constData());
  }
  ++impl.depth;
}

Transaction::~Transaction() {
  if (!open_) return;
  Database::Impl &impl = database_.Internals();
  --impl.depth;
  impl.afterCommit.resize(collectedBefore_);
  // After some failures SQLite has already rolled back by itself.
  if (sqlite3_get_autocommit(impl.handle) != 0) return;
  if (impl.depth == 0) {
    sqlite3_exec(impl.handle, "ROLLBACK", nullptr, nullptr, nullptr);
    impl.ForgetStructure();
  } else {
    sqlite3_exec(impl.handle, Savepoint("ROLLBACK TO", impl.depth).constData(), nullptr, nullptr, nullptr);
    sqlite3_exec(impl.handle, Savepoint("RELEASE", impl.depth).constData(), nullptr, nullptr, nullptr);
    impl.structure.Forget();
  }
}

void Transaction::Commit() {
  if (!open_) return;
  Database::Impl &impl = database_.Internals();
  impl.CheckTransaction();
  if (impl.depth > 1) {
    impl.Plain(Savepoint("RELEASE", impl.depth - 1).constData());
  } else {
    impl.Plain("COMMIT");
    if (sqlite3_total_changes64(impl.handle) != impl.changesAtBegin) ++impl.counts.commits;
  }
  --impl.depth;
  open_ = false;
  impl.CloseSideFiles();
  if (impl.depth == 0) Deliver(impl);
}

bool Database::InTransaction() const { return impl_->depth > 0; }

void Database::AfterCommit(std::function<void()> work) {
  if (InTransaction()) {
    impl_->afterCommit.push_back(std::move(work));
  } else {
    work();
  }
}

}  // namespace trimlog
