#include "core/session/change.h"

#include <gtest/gtest.h>

#include "support/heard_changes.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

DataChange Food(qint64 key) { return {.table = Table::MealsList, .keys = {key}}; }

TEST(ChangeTest, TellsAfterTheOutermostCommitWhatWasKept) {
  TestSession session;
  HeardChanges heard(*session);
  {
    Change outer(*session);
    outer.Announce(Food(1));
    {
      Change kept(*session);
      kept.Announce(Food(2));
      kept.Commit();
    }
    {
      Change dropped(*session);
      dropped.Announce(Food(3));
    }
    EXPECT_EQ(heard.Take(), "");
    outer.Commit();
  }
  EXPECT_EQ(heard.Take(), "meals_list 1; meals_list 2");
}

TEST(ChangeTest, NamesTheOneWhoActsForAllThatHappensInside) {
  TestSession session;
  const int outer = 0;
  const int inner = 0;
  std::vector<const void *> origins;
  QObject::connect(&session->changes, &DataChanges::Changed, [&](const DataChange &change) {
    origins.push_back(change.origin);
    if (change.keys.front() == 3) session.Announce(Food(4));  // who hears of it and writes acts for itself
  });
  {
    Change change(*session, &outer);
    session.Announce(Food(1));
    {
      Change named(*session, &inner);
      named.Announce(Food(2));
      named.Commit();
    }
    change.Announce(Food(3));
    change.Commit();
  }
  session.Announce(Food(5));
  EXPECT_EQ(origins, (std::vector<const void *>{&outer, &inner, &outer, nullptr, nullptr}));
}

TEST(ChangeTest, WhatFailsAfterwardsIsLoggedAndTakesNothingBack) {
  TestSession session;
  HeardChanges heard(*session);
  Change change(*session);
  session.Data().Execute("UPDATE people SET people.Goal = \"99\" WHERE (people.PersonID=1);");
  change.Afterwards([] { throw Error(error_number::other, "not read"); });
  change.Announce({.table = Table::People, .keys = {1}});
  change.Commit();
  EXPECT_EQ(heard.Take(), "people 1");
  EXPECT_EQ(session.ValueOf("Goal", "people", "PersonID=1"), "99");
  EXPECT_EQ(session.LogLines(), QStringList{"2026-03-01 12:00:00 - Change, Commit, not read"});
}

TEST(DataChangeTest, ConcernsThePersonsWhoseRowsItMayHold) {
  const QString ann = "2";
  EXPECT_TRUE((DataChange{.table = Table::Notes}).Concerns(ann));
  EXPECT_TRUE((DataChange{.table = Table::Notes, .personID = ann}).Concerns(ann));
  EXPECT_FALSE((DataChange{.table = Table::Notes, .personID = "1"}).Concerns(ann));
  EXPECT_TRUE((DataChange{.table = Table::People}).Concerns(ann));
  EXPECT_TRUE((DataChange{.table = Table::People, .keys = {1, 2}}).Concerns(ann));
  EXPECT_FALSE((DataChange{.table = Table::People, .keys = {1, 3}}).Concerns(ann));
}

}  // namespace
}  // namespace trimlog
