#include <gtest/gtest.h>

#include "core/profiles/new_profile.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

TEST(NewProfile, TakesTheNextKeyAndStoresWhatWasTyped) {
  TestSession session(QLocale(QLocale::German, QLocale::Germany));
  session.AddProfile(7, QStringLiteral("Ann"));
  NewProfile profile{.PersonName = " Robert\"); DELETE people.* FROM people; -- ", .goal = "80,5", .HeightFeet = 1.7};
  EXPECT_EQ(AddNewProfile(*session, profile), "8");
  EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=8"), "Robert''); DELETE people.* FROM people; --");
  EXPECT_EQ(session.ValueOf("Goal", "people", "PersonID=8"), "80.5");
  EXPECT_EQ(session.ValueOf("BirthDate", "people", "PersonID=8"), "");
  EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=7"), "Ann");
}

TEST(NewProfile, IsCheckedFieldByField) {
  TestSession session;
  const auto titleOf = [&session](const NewProfile &profile) {
    const auto complaint = CheckNewProfile(*session, profile);
    return complaint ? complaint->title : QString();
  };
  EXPECT_EQ(titleOf({.PersonName = "  "}), "Name Required");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .HeightFeet = 5e9}), "Invalid Height");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .HeightInches = -1}), "Invalid Height");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .BirthDate = QDate(2026, 3, 2)}), "Invalid Birth Date");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .HeightFeet = 5, .BirthDate = QDate(2026, 3, 1)}), "");
  EXPECT_EQ(titleOf({.PersonName = "Bo"}), "") << "a Profile ID is asked for only with the administrator";
  session->edition.BizEd = true;
  session.Data().Execute("UPDATE people SET UserID = \"Bo\" WHERE (PersonID=1);");
  EXPECT_EQ(titleOf({.PersonName = "Bo"}), "Profile ID Required");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .UserID = QString(26, 'x')}), "Profile ID Too Long");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .UserID = "x", .Password = QString(26, 'x')}), "Password Too Long");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .UserID = "bO"}), "Profile ID Already Exists");
  EXPECT_EQ(titleOf({.PersonName = "Bo", .UserID = "b", .Password = QString(25, 'x')}), "");
}

}  // namespace
}  // namespace trimlog
