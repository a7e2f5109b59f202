#include "core/data/data_access.h"

#include <gtest/gtest.h>

#include "support/fresh_file.h"

namespace trimlog {

namespace {

class DataAccess : public testing::Test {
 protected:
  void Run(const char *statement) { file.database->Execute(statement); }
  std::string Next(const char *table, const char *person = "") {
    return GetNextID(*file.database, table, person).toStdString();
  }
  std::string Get(const char *field, const char *table, const char *where = "", const char *alias = "",
                  const Params &params = {}) {
    return GetDataValue(*file.database, field, table, where, alias, params).toStdString();
  }

  FreshFile file;
};

}  // namespace

TEST_F(DataAccess, OneValueAsPlainText) {
  Run("INSERT INTO people ( PersonID, PersonName, Goal, BirthDate, HeightFeet, GenderID ) "
      "VALUES ( 1, \"Ann O'Brien\", \"120\", #4/7/1990#, 1.75, 2 );");
  Run("INSERT INTO meals_list ( MealID, IsModified ) VALUES ( 3, True );");
  struct Case {
    const char *field, *table, *where, *alias, *value;
  };
  for (const Case &c :
       {Case{"PersonName", "people", "people.PersonID=1", "", "Ann O'Brien"},
        Case{"people.PersonName", "people", "", "", "Ann O'Brien"},
        Case{"HeightFeet", "people", "PersonID=1", "", "1.75"},
        Case{"BirthDate", "people", "PersonID=1", "", "1990-04-07"},
        Case{"IsModified", "meals_list", "MealID=3", "", "-1"},
        Case{"Max(MealID) AS Highest", "meals_list", "", "Highest", "3"},
        Case{"Max(MealID) AS Highest", "meals_list", "MealID>3", "Highest", ""},
        Case{"PersonName", "people", "PersonID=2", "", ""}, Case{"Password", "people", "PersonID=1", "", ""},
        Case{"NoSuchColumn", "people", "PersonID=1", "", ""}, Case{"PersonName", "no_such_table", "", "", ""},
        Case{"PersonName", "people", "this is (no criterion", "", ""},
        Case{"Max(MealID) AS Highest", "meals_list", "", "Lowest", ""}}) {
    EXPECT_EQ(Get(c.field, c.table, c.where, c.alias), c.value) << c.field << ' ' << c.table << ' ' << c.where;
  }
  EXPECT_EQ(Get("PersonName", "people", "GenderID=? AND ((people.PersonID)=1) ", "", {2}), "Ann O'Brien");
  EXPECT_EQ(Get("PersonName", "people", "GenderID=? AND ((people.PersonID)=-1) ", "", {2}), "");
  EXPECT_EQ(Get("PersonName", "people", "PersonName=\"=1", "", {}), "") << "a text that is not closed";
  EXPECT_EQ(Get("PersonID", "people", "PersonName=?", "", {"ann o'brien"}), "1");
  EXPECT_EQ(Get("PersonID", "people", "PersonName=?", "", {"x\" OR \"\"=\""}), "");
}

TEST_F(DataAccess, NextKeys) {
  for (const char *table : {"people", "notes", "meals", "measurements", "activities", "other_daily_data", "meals_list",
                            "activities_list", "links", "recipes", "nutrition_targets"}) {
    EXPECT_EQ(Next(table, "1"), "1") << table << " is empty";
  }
  Run("INSERT INTO people ( PersonID ) VALUES ( -2 );");
  EXPECT_EQ(Next("people"), "1") << "beside the samples the first person has the first number";
  Run("INSERT INTO people ( PersonID ) VALUES ( 1 );");
  Run("INSERT INTO notes ( PersonID, RecordID ) VALUES ( 1, 41 );");
  Run("INSERT INTO other_daily_data ( PersonID, RecordID ) VALUES ( -2, 3 );");
  Run("INSERT INTO meals_list ( MealID ) VALUES ( 70000 );");
  EXPECT_EQ(Next("people"), "2");
  EXPECT_EQ(Next("notes", "1"), "42");
  EXPECT_EQ(Next("notes", "-2"), "1") << "another person's notes do not count";
  EXPECT_EQ(Next("other_daily_data", "-2"), "4");
  EXPECT_EQ(Next("meals_list"), "70001");
  EXPECT_EQ(GetNextIDExt(*file.database, "notes", "1"), "42");
  EXPECT_THROW(GetNextIDExt(*file.database, "nutrition_targets"), Error);
  EXPECT_THROW(GetNextIDExt(*file.database, "other_daily_data", "1"), Error);
  EXPECT_THROW(Next("uom"), Error);
}

TEST_F(DataAccess, TheUsersTargetSetsAreNumberedBelowTenWhileTheyFit) {
  Run("INSERT INTO nutrition_targets ( TargetID ) VALUES ( 43 );");
  EXPECT_EQ(Next("nutrition_targets"), "44") << "no set of the user's";
  Run("INSERT INTO nutrition_targets ( TargetID ) VALUES ( 1 );");
  EXPECT_EQ(Next("nutrition_targets"), "2");
  Run("INSERT INTO nutrition_targets ( TargetID ) VALUES ( 9 );");
  EXPECT_EQ(Next("nutrition_targets"), "44") << "used up";
}

}  // namespace trimlog
