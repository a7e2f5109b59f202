#include "tools/tools_profile.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace trimlog {
namespace {

TEST(ToolsProfileData, TakesFirstAndLastWeightAndTheLatestWaist) {
  TestSession session(QLocale(QLocale::German, QLocale::Germany));
  ToolsProfile profile = ReadToolsProfile(*session);
  EXPECT_FALSE(profile.initialWeight || profile.currentWeight || profile.LatestWaist);
  EXPECT_EQ(CurrentWeightCaption(profile, "Kg", session->locale), "Use My Current Weight");
  EXPECT_EQ(CurrentWaistCaption(profile, 2, session->locale), "Use My Most Recent Measurement");

  session.Weigh(QDate(2026, 2, 20), 93.5);
  session.Weigh(QDate(2026, 1, 5), 97.25);
  session.Weigh(QDate(2026, 2, 3), 99);
  for (const char *row : {"1, #2/1/2026#, 91.5", "2, #2/11/2026#, 90.5", "3, #1/1/2026#, 99"}) {
    session.Data().Execute(
        QStringLiteral("INSERT INTO measurements ( PersonID, RecordID, ThisDate, Waist ) VALUES ( 1, %1 );").arg(row));
  }
  profile = ReadToolsProfile(*session);
  EXPECT_EQ(profile.initialWeight->ThisDate, QDate(2026, 1, 5));
  EXPECT_EQ(InitialWeightCaption(profile, "Kg", session->locale), "Use My Initial Weight of 97,25 Kg");
  EXPECT_EQ(CurrentWeightCaption(profile, "Kg", session->locale), "Use My Current Weight of 93,5 Kg");
  EXPECT_EQ(CurrentWaistCaption(profile, 2, session->locale), "Use My Most Recent Measurement of 90,5 Cm");
  EXPECT_EQ(WholeHeightText({1, {}, 1, 80}, 2, session->locale), "180 Cm");
  EXPECT_EQ(WholeHeightText({1, {}, 5, 6}, 1, session->locale), "66 Inches");

  // A latest measurement without a waist tells none.
  session.Data().Execute(
      "INSERT INTO measurements ( PersonID, RecordID, ThisDate, Chest ) VALUES ( 1, 4, #2/12/2026#, 100 );");
  EXPECT_FALSE(ReadToolsProfile(*session).LatestWaist);
}

TEST(ToolsProfileData, ThePlansMethodIsKeptAndTheGoalIsNot) {
  TestSession session(QLocale(QLocale::German, QLocale::Germany));
  int announced = 0;
  QObject::connect(&session->changes, &DataChanges::Changed, &session->changes, [&announced] { ++announced; });
  SaveGoalMethod(*session, GoalMethod::ByRate, QDate(2026, 12, 24), "0,75");
  const ToolsProfile profile = ReadToolsProfile(*session);
  EXPECT_EQ(profile.method, GoalMethod::ByRate);
  EXPECT_EQ(profile.GoalMethodDate, QDate(2026, 12, 24));
  EXPECT_EQ(profile.GoalMethodLbsWeek, "0,75");
  EXPECT_EQ(session.ValueOf("GoalMethodLbsWeek", "people", "PersonID=1"), "0.75");
  EXPECT_EQ(profile.Goal, "150");
  EXPECT_EQ(announced, 1);

  const qint64 commits = session.Data().Counts().commits;
  SaveGoalMethod(*session, GoalMethod::ByRate, QDate(2026, 12, 24), "0,75");
  EXPECT_EQ(session.Data().Counts().commits, commits) << "nothing differs";
  EXPECT_EQ(announced, 1);

  SaveGoalMethod(*session, GoalMethod::ByDate, QDate(), "x");
  EXPECT_FALSE(ReadToolsProfile(*session).GoalMethodDate.isValid());
  EXPECT_EQ(ReadToolsProfile(*session).GoalMethodLbsWeek, "");
}

}  // namespace
}  // namespace trimlog
