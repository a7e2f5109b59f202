#include "core/profiles/passwords.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace trimlog {
namespace {

struct PasswordCase {
  const char *name, *stored;
  PasswordEntry entry;
  PasswordOutcome outcome;
  const char *title, *text, *storedAfter;
};

PasswordEntry Entry(const char *old, const char *changed, const char *confirmed) {
  return {QString::fromUtf8(old), QString::fromUtf8(changed), QString::fromUtf8(confirmed)};
}

const char *const wrongOld =
    "The Old Password that you typed is incorrect.  Please type your Old password again or hit <Cancel> to close this "
    "window.";
const char *const notAlike =
    "The New and Confirmed passwords do not match.  Please type your New password again in the fields provided.";
const char *const sameAsOld =
    "The Old and New passwords are the same.  Please type your New password again in the fields provided.";
const char *const changed =
    "Your password has been changed.  Please keep a record of this password in a secure place.  You will be unable to "
    "view or edit your information without the password.";
const char *const removed =
    "Your password was removed successfully.  You will no longer be prompted for a password when loading this profile.";

TEST(ChangePassword, FollowsItsRulesInOrder) {
  const PasswordCase cases[] = {
      {"first password", "", Entry("", "Secret", "sECRET"), PasswordOutcome::Changed, "Password Changed", changed,
       "Secret"},
      {"old in capitals", "abc", Entry("ABC", "new", "new"), PasswordOutcome::Changed, "Password Changed", changed,
       "new"},
      {"wrong old comes first", "abc", Entry("abd", "x", "y"), PasswordOutcome::WrongOld, "Incorrect Password",
       wrongOld, "abc"},
      {"missing old", "abc", Entry("", "", ""), PasswordOutcome::WrongOld, "Incorrect Password", wrongOld, "abc"},
      {"not confirmed", "abc", Entry("abc", "abc", "x"), PasswordOutcome::NotConfirmed, "New Passwords Do Not Match",
       notAlike, "abc"},
      {"same as old", "abc", Entry("abc", "ABC", "abc"), PasswordOutcome::SameAsOld, "Passwords Cannot Match",
       sameAsOld, "abc"},
      {"none before, none after", "", Entry("", "", ""), PasswordOutcome::SameAsOld, "Passwords Cannot Match",
       sameAsOld, ""},
      {"removed", "abc", Entry("abc", "", ""), PasswordOutcome::Changed, "Password Removed", removed, ""},
      {"quotes and SQL", "a\"b", Entry("A\"B", "x\"); DELETE", "x\"); DELETE"), PasswordOutcome::Changed,
       "Password Changed", changed, "x\"); DELETE"},
      {"letters beyond ASCII", "äöü", Entry("ÄÖÜ", "ÉCLAIR", "éclair"), PasswordOutcome::Changed, "Password Changed",
       changed, "ÉCLAIR"}};
  for (const PasswordCase &row : cases) {
    SCOPED_TRACE(row.name);
    TestSession session;
    session.AddProfile(2, "Ann");
    session.Data().Execute("UPDATE people SET Password = ? WHERE PersonID=1;", {QString::fromUtf8(row.stored)});
    session.boxes.Expect(row.title, row.text);
    EXPECT_EQ(ChangePassword(*session, "1", row.entry), row.outcome);
    ASSERT_EQ(session.boxes.Shown().size(), 1u);
    EXPECT_EQ(session.boxes.Shown().front().text.toStdString(), row.text);
    EXPECT_EQ(session.boxes.Shown().front().icon,
              row.outcome == PasswordOutcome::Changed ? BoxIcon::Information : BoxIcon::Critical);
    EXPECT_EQ(StoredPassword(*session, "1").toStdString(), row.storedAfter);
    EXPECT_EQ(StoredPassword(*session, "2"), "") << "another profile's password";
  }
}

TEST(ChangePassword, AFailureAppendsItsDescription) {
  TestSession session;
  session.Data().Execute("ALTER TABLE people DROP COLUMN Password;");
  session.boxes.Expect("Error Changing Password", "An error occurred while changing your password.  ");
  EXPECT_EQ(ChangePassword(*session, "1", Entry("", "x", "x")), PasswordOutcome::Failed);
  EXPECT_FALSE(session.boxes.Shown().front().text.endsWith("password.  "));
}

}  // namespace
}  // namespace trimlog
