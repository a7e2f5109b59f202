#include "core/profiles/profiles.h"

#include <gtest/gtest.h>

#include "core/profiles/colour_scheme.h"
#include "core/profiles/profile_list.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

std::string PeopleField(TestSession &session, const char *field, int personID) {
  return session.ValueOf(field, "people", QStringLiteral("PersonID=%1").arg(personID)).toStdString();
}

int RowsOf(TestSession &session, const char *table, int personID) {
  return session.ValueOf("Count(*) AS HowMany", table, QStringLiteral("PersonID=%1").arg(personID)).toInt();
}

TEST(ApplyProfile, TakesColourTargetsAndStanding) {
  struct Case {
    const char *name, *personID;
    const char *stored;  // SQL that prepares people; "" for none
    double colours;
    bool loginMode;
    quint32 backColor;  // before: 0x123456
    int targetSet;
    const char *lastReal;  // before: "1"
  };
  const Case cases[] = {
      {"own colour and targets", "7", "UPDATE people SET BackColor=14745599, NutTargetID=12 WHERE PersonID=7;",
       16777216, false, 14745599, 12, "7"},
      {"no colour keeps the one in force", "7", "UPDATE people SET NutTargetID=Null WHERE PersonID=7;", 16777216, false,
       0x123456, 30, "7"},
      {"a sample ignores its row's colour", "-1", "UPDATE people SET BackColor=255 WHERE PersonID=-1;", 16777216, false,
       0xFFE0C0, 30, "1"},
      {"a sample on few colours", "-2", "", 256, false, 0xC0FFFF, 30, "1"},
      {"nobody on many colours", "0", "", 16777216, false, 0x123456, 30, "0"},
      {"nobody on few colours", "0", "", 256, false, 0xC0FFFF, 30, "0"},
      {"nobody in login mode", "0", "", 256, true, 0x123456, 30, "0"},
      {"an old sample number is never the last real one", "-4", "", 16777216, false, 0x123456, 30, "1"}};
  for (const Case &row : cases) {
    SCOPED_TRACE(row.name);
    TestSession session;
    session.AddProfile(7, "Ann");
    session.Data().Execute("UPDATE people SET NutTargetID=Null WHERE PersonID < 0;");
    if (*row.stored) session.Data().Execute(row.stored);
    session.machine.colors = row.colours;
    session->edition.BizEdLoginMode = row.loginMode;
    session->profile.BackColor = 0x123456;
    session->profile.FirstWeightDate = session->profile.LastWeightDate = session->windows.RememberedDate =
        QDate(2026, 1, 1);
    ApplyProfile(*session, {}, row.personID);
    EXPECT_EQ(session->profile.CurrentPersonID.toStdString(), row.personID);
    EXPECT_EQ(session->profile.BackColor, row.backColor);
    EXPECT_EQ(session->profile.NutTargetID, row.targetSet);
    EXPECT_EQ(session->profile.LastRealPersonID.toStdString(), row.lastReal);
    EXPECT_FALSE(session->profile.FirstWeightDate.isValid() || session->profile.LastWeightDate.isValid() ||
                 session->windows.RememberedDate.isValid());
  }
}

TEST(ApplyProfile, ReadsTargetsBeforeRewardsAndStatisticsLast) {
  TestSession session;
  session.AddProfile(7, "Ann");
  session.Data().Execute("UPDATE people SET NutTargetID=10 WHERE PersonID=7;");
  const QString expected = session.ValueOf("Calories", "nutrition_targets", "TargetID=10");
  QStringList order;
  RoomHooks hooks;
  hooks.LoadRewardSettings = [&] {
    EXPECT_DOUBLE_EQ(session->nutrients.NutrientTargets[0], expected.toDouble());
    order.append("rewards of " + session->profile.CurrentPersonID);
  };
  hooks.UpdateStats = [&] {
    EXPECT_GT(session->nutrients.SelectedNutrients[0].NutrientID, 0);
    order.append("statistics");
  };
  QObject::connect(&session->changes, &DataChanges::ProfileLoaded, [&order] { order.append("told"); });
  ApplyProfile(*session, hooks, "7");
  EXPECT_EQ(order.join(", "), "rewards of 7, statistics, told");
}

std::string MenuOf(TestSession &session) {
  QStringList lines;
  for (const ProfileMenuEntry &entry : ProfilesMenuEntries(*session, FillProfilesArray(*session))) {
    lines.append(entry.caption + (entry.PersonID.isEmpty() ? QString() : "=" + entry.PersonID) +
                 (entry.checked ? "*" : QString()));
  }
  return lines.join(QLatin1Char('|')).toStdString();
}

TEST(ProfilesMenu, ListsNamesSamplesAndCommands) {
  TestSession session;
  session.AddProfile(12, "Tom & Ann");
  session.AddProfile(3, "abel");
  const std::string tail = "-|&Create a New Profile...|&Edit Profiles...";
  EXPECT_EQ(MenuOf(session), "abel=3|Test Person=1*|Tom && Ann=12|-|Sample Profile 1=-2|Sample Profile 2=-1|" + tail);
  session->profile.CurrentPersonID = "-1";
  EXPECT_EQ(MenuOf(session), "abel=3|Test Person=1|Tom && Ann=12|-|Sample Profile 1=-2|Sample Profile 2=-1*|" + tail);
  session->edition.BizEd = true;
  EXPECT_EQ(MenuOf(session), "Select &Profile...|Profile &Administrator...");
  session->edition.BizEdLoginMode = true;
  EXPECT_EQ(MenuOf(session), "abel=3|Test Person=1|Tom && Ann=12|-|Sample Profile 1=-2|Sample Profile 2=-1*|" + tail);
}

TEST(ProfilesMenu, EachSampleHasItsOwnWelcome) {
  TestSession session;
  session.boxes.Expect("Welcome to Sample Profile 1",
                       "This sample profile demonstrates a one month period of weight loss, while also "
                       "logging meals, exercises, measurements, and notes in the Journal.");
  session.boxes.Expect(
      "Welcome to Sample Profile 2",
      "This sample profile demonstrates weight loss over a 7 month period of time.  This is an example "
      "of using Trimlog Pro at its simplest level, with no journal entries.  The weight loss charts are "
      "interesting to see here, since they contain several months of data.");
  ShowSampleWelcome(*session, "-2");
  ShowSampleWelcome(*session, "-1");
  ShowSampleWelcome(*session, "1");
}

void AddWeightAndNote(TestSession &session, int personID) {
  session.Weigh(QDate(2026, 2, 1), 180, personID);
  session.Data().Execute(
      "INSERT INTO notes ( PersonID, RecordID, ThisDate, Notes ) VALUES ( ?, 1, #2/1/2026#, \"n\" );", {personID});
}

TEST(ResetWeightLossData, DeletesThoseOfProfileOneWhicheverIsLoaded) {
  TestSession session;
  session.AddProfile(2, "Ann");
  session->profile.CurrentPersonID = "2";
  AddWeightAndNote(session, 1);
  AddWeightAndNote(session, 2);
  const QString title = "Reset Weight Loss Data";
  const QString question =
      "This action will delete all weight loss data that you have previously recorded.  Once this data is deleted you "
      "cannot get it back.  Are you sure you want to continue?";
  session.boxes.Expect(title, question, BoxButton::No);
  session.boxes.Expect({}, "Action canceled.  No data was deleted.");
  EXPECT_FALSE(ResetWeightLossData(*session));
  EXPECT_EQ(session.boxes.Shown().front().defaultButton, BoxButton::No);
  EXPECT_EQ(RowsOf(session, "weight_loss", 1), 1);

  session.boxes.Expect(title, question, BoxButton::Yes);
  session.boxes.Expect({}, "All weight loss data has been deleted successfully.");
  EXPECT_TRUE(ResetWeightLossData(*session));
  EXPECT_EQ(RowsOf(session, "weight_loss", 1) + RowsOf(session, "notes", 1), 0);
  EXPECT_EQ(RowsOf(session, "weight_loss", 2) + RowsOf(session, "notes", 2), 2);
}

TEST(AdminProfile, MovesTheFirstProfileWithItsDataAndIsMadeOnce) {
  TestSession session;
  session.AddProfile(5, "Ann");
  AddWeightAndNote(session, 1);
  CreateAdminProfile(*session);
  EXPECT_EQ(PeopleField(session, "PersonName", 1), "Test Person") << "without the Profile Administrator";

  session->edition.BizEd = true;
  CreateAdminProfile(*session);
  EXPECT_EQ(PeopleField(session, "PersonName", 6), "Test Person");
  EXPECT_EQ(RowsOf(session, "notes", 6), 1);
  EXPECT_EQ(session.Rows("SELECT PersonName, UserID, Password, Goal, GoalMethodID, GoalMethodLbsWeek, HeightFeet, "
                         "HeightInches, GenderID, BackColor FROM people WHERE PersonID=1;"),
            "Administrator|admin|kvr7gates|120|2|2|5|3|2|16769216");
  EXPECT_EQ(PeopleField(session, "UserID", -2), "sample1");
  EXPECT_EQ(PeopleField(session, "UserID", -1), "sample2");
  EXPECT_EQ(session.ValueOf("ThisWeight", "weight_loss", "PersonID=1 AND ThisDate=#3/1/2026#"), "120");

  session.Data().Execute("UPDATE people SET Password=\"mine\" WHERE PersonID=1;");
  CreateAdminProfile(*session);
  EXPECT_EQ(PeopleField(session, "Password", 1), "mine");
  EXPECT_EQ(RowsOf(session, "weight_loss", 1), 1);
}

TEST(AdminProfile, AFailureLeavesThePeopleAsTheyWere) {
  TestSession session;
  session->edition.BizEd = true;
  session.Data().Execute("DROP TABLE weight_loss;");
  EXPECT_ANY_THROW(CreateAdminProfile(*session));
  EXPECT_EQ(PeopleField(session, "PersonName", 1), "Test Person");
}

TEST(ProfileToStandOn, FindsAProfileThatIsStillThere) {
  TestSession session;
  session.AddProfile(4, "Ann");
  session.AddProfile(9, "Bob");
  EXPECT_EQ(ProfileToStandOn(*session), "1");
  session->profile.CurrentPersonID = session->profile.LastRealPersonID = "9";
  session.Data().Execute("DELETE people.* FROM people WHERE PersonID IN (1, 9);");
  EXPECT_EQ(ProfileToStandOn(*session), "4");
  EXPECT_EQ(session->profile.LastRealPersonID, "4");
  session->profile.CurrentPersonID = "-1";
  EXPECT_EQ(ProfileToStandOn(*session), "-1");
  session->profile.CurrentPersonID = "4";
  session.Data().Execute("DELETE people.* FROM people WHERE PersonID > 0;");
  EXPECT_EQ(ProfileToStandOn(*session), "-2");
  EXPECT_EQ(session->profile.LastRealPersonID, "") << "what is stored at exit must not name a deleted profile";
}

TEST(StoreBackColor, TheLoadedProfilesColourIsInForce) {
  TestSession session;
  session.AddProfile(4, "Ann");
  for (const auto &[person, inForce] : {std::pair{"4", 0xFFE0C0u}, {"1", 0xE0FFE0u}}) {
    session.boxes.Expect("Color Scheme Changed.",
                         "Your color scheme changes will completely take effect the next time you log on.");
    StoreBackColor(*session, person, 0xE0FFE0);
    EXPECT_EQ(session->profile.BackColor, inForce);
  }
  EXPECT_EQ(session.Rows("SELECT BackColor FROM people WHERE PersonID > 0;"), "14745568; 14745568");
}
}  // namespace
}  // namespace trimlog
