#pragma once

#include <functional>

#include "core/session/session.h"

namespace trimlog {

/// One action of a person that writes to the data file: all or nothing, and nobody hears of it before it is on the
/// disk. Changes nest, in each other and in the store's transactions; the outermost commit decides. What is announced,
/// read into memory or told the person waits for it, and falls away when the work is taken back:
///
///   Change change(session);
///   session.Data().Execute(...);
///   change.Announce({.table = Table::MealsList, .keys = {mealID}});
///   change.Commit();
///
/// Message boxes have no place inside: the failure guard stands around a change, never within one.
class Change {
 public:
  /// `origin` is who does it, given on with every announcement; a change inside another one acts for the outer's.
  explicit Change(Session &session, const void *origin = nullptr);
  ~Change();
  Change(const Change &) = delete;
  Change &operator=(const Change &) = delete;

  void Announce(DataChange change);
  /// Work for after the outermost commit. What it throws leaves a log line: the data are saved all the same.
  void Afterwards(std::function<void()> work);
  void Commit();

 private:
  Session &session_;
  const void *const outerOrigin_;
  Transaction transaction_;
};

/// For who is told within a transaction of the store and opens none of its own, as a grid's hooks are: announces once
/// the outermost one stands on the disk.
void AnnounceAfterCommit(Session &session, DataChange change);

}  // namespace trimlog
