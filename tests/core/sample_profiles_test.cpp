#include "core/profiles/sample_profiles.h"

#include <gtest/gtest.h>

#include <QFile>

#include "platform/store/recordset.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

const char *const tables[] = {"activities", "meals", "measurements", "notes", "weight_loss"};

// Every value of a person's rows; the pristine rows are those of the _sample table.
QStringList RowsOf(TestSession &session, const QString &table, int personID) {
  QStringList names = session.Data().ColumnNames(table);
  names.sort();
  QStringList rows =
      session.Rows(QStringLiteral("SELECT %1 FROM %2 WHERE PersonID = ?;").arg(names.join(", "), table), {personID})
          .split("; ", Qt::SkipEmptyParts);
  rows.sort();
  return rows;
}

QStringList AllRowsOf(TestSession &session, int personID, const QString &suffix = {}) {
  QStringList all;
  for (const char *table : tables) all += RowsOf(session, table + suffix, personID);
  return all;
}

class SampleReset : public ::testing::Test {
 protected:
  // What a curious person leaves behind in a sample.
  void Scribble(int personID) {
    session.Data().Execute("DELETE weight_loss.* FROM weight_loss WHERE PersonID = ? AND ThisWeight > 0;", {personID});
    session.Data().Execute("UPDATE meals SET Calories = 9999, TransFat = 7 WHERE PersonID = ?;", {personID});
    session.Data().Execute(
        "INSERT INTO notes ( PersonID, RecordID, ThisDate, Notes ) VALUES ( ?, 30000, "
        "#1/1/2020#, \"mine\" );",
        {personID});
    session.Data().Execute(
        "INSERT INTO activities ( PersonID, RecordID, ThisDate, ActivityID, IsPlanned ) "
        "SELECT ? AS Expr1, 30000 AS Expr2, #1/1/2030# AS Expr3, "
        "Min(activities_list.ActivityID) AS Expr4, True AS Expr5 FROM activities_list;",
        {personID});
  }

  TestSession session;
};

TEST_F(SampleReset, RestoresExactlyAndTouchesNobodyElse) {
  for (const int personID : {-2, -1}) {
    SCOPED_TRACE(personID);
    const QStringList pristine = AllRowsOf(session, personID, "_sample");
    ASSERT_FALSE(pristine.isEmpty());
    Scribble(personID);
    Scribble(1);
    const QStringList others = AllRowsOf(session, 1) + AllRowsOf(session, personID == -1 ? -2 : -1);
    ASSERT_NE(AllRowsOf(session, personID), pristine);
    const qint64 commits = session.Data().Counts().commits;
    ResetSampleProfile(*session, QString::number(personID));
    EXPECT_EQ(session.Data().Counts().commits, commits + 1);
    EXPECT_EQ(AllRowsOf(session, personID).join(QLatin1Char('\n')), pristine.join(QLatin1Char('\n')));
    EXPECT_EQ(AllRowsOf(session, 1) + AllRowsOf(session, personID == -1 ? -2 : -1), others);
    session.Data().Execute("DELETE notes.* FROM notes WHERE PersonID = 1;");
    session.Data().Execute("DELETE activities.* FROM activities WHERE PersonID = 1;");
  }
}

TEST_F(SampleReset, LeavesOrdinaryProfilesAlone) {
  session.AddProfile(5, "Ann");
  Scribble(5);
  const QStringList before = AllRowsOf(session, 5);
  for (const char *personID : {"5", "1", "0", "", "-3", "-1 OR 1=1"}) {
    ResetSampleProfile(*session, personID);
  }
  EXPECT_EQ(AllRowsOf(session, 5), before);
}

TEST_F(SampleReset, AFailureIsShownLoggedAndUndone) {
  Scribble(-2);
  const QStringList before = AllRowsOf(session, -2);
  session.Data().Execute("DROP TABLE notes_sample;");
  session.boxes.Expect("Error Reseting Data", "An error occurred while resetting the sample data.  ");
  ResetSampleProfile(*session, "-2");
  EXPECT_EQ(AllRowsOf(session, -2), before);
  ASSERT_EQ(session.LogLines().size(), 1);
  EXPECT_TRUE(session.Logged("Error resetting sample data for profile -2 with SQL=INSERT INTO notes ( PersonID, "));
  EXPECT_TRUE(session.Logged(".  Error Description: "));
}

}  // namespace
}  // namespace trimlog
