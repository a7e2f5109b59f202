#include "core/profiles/person.h"

#include <gtest/gtest.h>

#include "core/profiles/goal.h"
#include "core/profiles/height.h"
#include "core/profiles/passwords.h"
#include "core/profiles/profile_list.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

TEST(Person, IsAddedUnderTheNextKeyAsTyped) {
  TestSession session;
  session.AddProfile(7, "Ann");
  const Person typed{.PersonName = " Robert\"); DELETE people.* FROM people; -- ",
                     .Goal = 80.5,
                     .HeightFeet = 5,
                     .HeightInches = 9.5,
                     .GenderID = 1,
                     .UserID = "a\"b",
                     .Password = "say \"hi\"",
                     .BackColor = 0xE0FFE0};
  EXPECT_EQ(AddPerson(*session, typed), "8");
  const std::optional<Person> kept = ReadPerson(*session, "8");
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->PersonName, "Robert''); DELETE people.* FROM people; --");
  EXPECT_EQ(session.ValueOf("Goal", "people", "PersonID=8"), "80.5");
  EXPECT_EQ(kept->HeightFeet * 100 + kept->HeightInches, 509.5);
  EXPECT_FALSE(kept->BirthDate.isValid());
  EXPECT_EQ(kept->GenderID, 1);
  EXPECT_EQ(kept->BackColor, 0xE0FFE0u);
  EXPECT_EQ(kept->NutTargetID, 1);
  EXPECT_EQ(kept->UserID, "a\"b");
  // Double quotes are compared as they are kept: nobody is locked out, and an ID is taken by itself.
  EXPECT_TRUE(PasswordMatches("SAY \"HI\"", StoredPassword(*session, "8")));
  session->edition.BizEd = true;
  const auto taken = CheckNewPerson(*session, {.PersonName = "Bo", .UserID = "A\"B"});
  EXPECT_EQ(taken ? taken->title : QString(), "Profile ID Already Exists");
  EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=7"), "Ann");
}

TEST(Person, NeverTakesAKeyBelowOne) {
  TestSession session;
  session.Data().Execute("DELETE people.* FROM people WHERE (people.PersonID > 0);");
  EXPECT_EQ(NextPersonID(*session), "1") << "the samples alone are left";
  session.Data().Execute("DELETE people.* FROM people;");
  EXPECT_EQ(AddPerson(*session, {.PersonName = "Ann"}), "1");
}

TEST(Person, AnUpdateTouchesItsOwnFieldsOfOneRow) {
  TestSession session;
  session.AddProfile(7, "Ann");
  session.Data().Execute(
      "UPDATE people SET Password=\"x\", UserID=\"t\", BackColor=5, NutTargetID=9 WHERE PersonID=1;");
  UpdatePerson(*session, "1", {.PersonName = "Bo", .Goal = 70, .BirthDate = QDate(1990, 5, 6), .GenderID = 1});
  const std::optional<Person> kept = ReadPerson(*session, "1");
  EXPECT_EQ(kept->PersonName + kept->Password + kept->UserID, "Boxt");
  EXPECT_EQ(kept->Goal, 70);
  EXPECT_EQ(kept->BirthDate, QDate(1990, 5, 6));
  EXPECT_EQ(kept->BackColor + static_cast<quint32>(kept->NutTargetID), 14u);
  EXPECT_EQ(session.ValueOf("PersonName", "people", "PersonID=7"), "Ann");
}

TEST(Person, IsCheckedFieldByField) {
  TestSession session;
  session.Data().Execute("UPDATE people SET UserID = \"Bo\" WHERE (PersonID=1);");
  struct Case {
    Person person;
    const char *title;
    bool signIn = false;
  };
  const Case cases[] = {{{.PersonName = "  "}, "Name Required"},
                        {{.PersonName = "Bo", .HeightFeet = 5, .HeightInches = -1}, "Invalid Height"},
                        {{.PersonName = "Bo", .Goal = 1e300}, "Invalid Goal"},
                        {{.PersonName = "Bo", .Goal = -1}, ""},
                        {{.PersonName = "Bo", .BirthDate = QDate(2026, 3, 2)}, "Invalid Birth Date"},
                        {{.PersonName = "Bo", .HeightFeet = 5, .BirthDate = QDate(2026, 3, 1)}, ""},
                        {{.PersonName = "Bo"}, ""},
                        {{.PersonName = "Bo"}, "Profile ID Required", true},
                        {{.PersonName = "Bo", .UserID = QString(26, 'x')}, "Profile ID Too Long", true},
                        {{.PersonName = "Bo", .UserID = "x", .Password = QString(26, 'x')}, "Password Too Long", true},
                        {{.PersonName = "Bo", .UserID = "bO"}, "Profile ID Already Exists", true},
                        {{.PersonName = "Bo", .UserID = "b", .Password = QString(25, 'x')}, "", true}};
  for (const Case &c : cases) {
    session->edition.BizEd = c.signIn;
    const auto complaint = CheckNewPerson(*session, c.person);
    EXPECT_EQ(complaint ? complaint->title : QString(), c.title) << c.person.UserID.toStdString();
  }
}

TEST(Height, IsOnePersonsInItsUnitSystem) {
  struct Case {
    double one, other;
    int UomID;
    bool fine;
  };
  const Case cases[] = {{5, 6, 1, true},    {0, 66, 1, true},   {9, 10, 1, true}, {9, 11, 1, false}, {1, 11, 1, false},
                        {2, 0, 1, true},    {170, 0, 1, false}, {0, 0, 1, true},  {1, 70, 2, true},  {0, 178, 2, true},
                        {170, 0, 2, false}, {1.78, 0, 2, true}, {5, 6, 2, false}, {3, 0, 2, true},   {3, 1, 2, false},
                        {0, 59, 2, false},  {2, -30, 2, false}};
  for (const Case &c : cases) {
    EXPECT_EQ(RefusedHeight(c.one, c.other, c.UomID).isEmpty(), c.fine) << c.one << " " << c.other << " " << c.UomID;
  }
  // Somebody who changes the name alone is not asked about a height that the units have outgrown.
  GridRowEdit row(1, false, [](const QString &field) { return field == "HeightFeet" ? Value(5) : Value(6); });
  row.Set("PersonName", "Bo");
  EXPECT_EQ(RefusedProfileRow(row, 2), "");
  row.Set("HeightInches", 7);
  EXPECT_EQ(RefusedProfileRow(row, 2), "Please enter a valid height.");
  row.Set("HeightFeet", 1);
  row.Set("HeightInches", 70);
  EXPECT_EQ(RefusedProfileRow(row, 2), "");
}

TEST(Goal, IsReadByOneRuleWhereverItIsUsed) {
  struct Case {
    const char *stored;
    double number;  // -1: none
    const char *english, *german;
  };
  for (const Case &c : {Case{"150.5", 150.5, "150.5", "150,5"},
                        {"150,5", 150.5, "150.5", "150,5"},
                        {"150", 150, "150", "150"},
                        {"", -1, "", ""},
                        {"soon", -1, "soon", "soon"}}) {
    EXPECT_EQ(GoalFrom(c.stored).value_or(-1), c.number) << c.stored;
    EXPECT_EQ(GoalToShow(c.stored, QLocale(QLocale::English, QLocale::UnitedStates)), c.english) << c.stored;
    EXPECT_EQ(GoalToShow(c.stored, QLocale(QLocale::German, QLocale::Germany)), c.german) << c.stored;
  }
  EXPECT_EQ(RefusedGoal(heaviestWeight), "");
  EXPECT_NE(RefusedGoal(heaviestWeight * 1.1), "");
}

}  // namespace
}  // namespace trimlog
