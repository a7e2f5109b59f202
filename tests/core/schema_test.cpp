#include "core/data/schema.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "support/fresh_file.h"

namespace trimlog {

namespace {

const QStringList personTables = {"weight_loss",
                                  "notes",
                                  "measurements",
                                  "meals",
                                  "activities",
                                  "other_daily_data",
                                  "rewards",
                                  "serava_journal",
                                  "weight_loss_sample",
                                  "notes_sample",
                                  "measurements_sample",
                                  "meals_sample",
                                  "activities_sample"};

/// One row of a table whose keys and relations point to person `person`, food 1, exercise 1, recipe 2.
void AddRow(Database &database, const QString &name, int person) {
  const SchemaTable &table = FindSchemaTable(name);
  const QHash<QString, Value> known = {{"PersonID", person}, {"RecordID", 1},   {"MealID", 1},
                                       {"RecipeID", 2},      {"ActivityID", 1}, {"ThisDate", QDate(2026, 3, 1)}};
  QStringList columns;
  QStringList marks;
  Params values;
  for (const SchemaColumn &column : table.columns) {
    if (!known.contains(column.name)) continue;
    columns.append(column.name);
    marks.append("?");
    values.append(known.value(column.name));
  }
  database.Execute(
      QStringLiteral("INSERT INTO %1 ( %2 ) VALUES ( %3 );").arg(name, columns.join(", "), marks.join(", ")), values);
}

/// People 5 and 6 with one row in every table of people's data, food 1 in recipe 2, exercise 1.
class FullFile : public FreshFile {
 public:
  FullFile() {
    for (const char *statement :
         {"INSERT INTO people ( PersonID, PersonName ) VALUES ( 5, 'Five' );",
          "INSERT INTO people ( PersonID, PersonName ) VALUES ( 6, 'Six' );",
          "INSERT INTO meals_list ( MealID, MealDesc ) VALUES ( 1, 'Food' );",
          "INSERT INTO meals_list ( MealID, MealDesc ) VALUES ( 2, 'Recipe' );",
          "INSERT INTO activities_list ( ActivityID, ActivityDesc ) VALUES ( 1, 'Exercise' );"}) {
      database->Execute(QString::fromLatin1(statement).replace(QLatin1Char('\''), QLatin1Char('"')));
    }
    for (const QString &table : personTables) {
      AddRow(*database, table, 5);
      AddRow(*database, table, 6);
    }
    AddRow(*database, "recipe_detail", 0);
  }
};

}  // namespace

TEST(Schema, APersonsRowsGoWithThePersonAndFollowANewNumber) {
  FullFile file;
  file.database->Execute("UPDATE people SET people.PersonID = 9 WHERE ((people.PersonID)=5);");
  for (const QString &table : personTables) {
    EXPECT_EQ(file.Count(table, "PersonID=9"), 1) << table.toStdString();
    EXPECT_EQ(file.Count(table, "PersonID=5"), 0) << table.toStdString();
  }
  file.database->Execute("DELETE people.* FROM people WHERE ((people.PersonID)=9);");
  for (const QString &table : personTables) {
    EXPECT_EQ(file.Count(table, "PersonID=9"), 0) << table.toStdString();
    EXPECT_EQ(file.Count(table, "PersonID=6"), 1) << table.toStdString();
  }
}

TEST(Schema, EntriesGoWithTheirFoodTheirRecipeAndTheirExercise) {
  struct Case {
    const char *what, *parent;
    QStringList emptied;
    QStringList kept;
  };
  const QString meals = "meals";
  const QString activities = "activities";
  const QString recipeDetail = "recipe_detail";
  const std::vector<Case> cases = {
      {"food", "meals_list WHERE MealID=1", {meals, "meals_sample", recipeDetail}, {activities}},
      {"recipe", "meals_list WHERE MealID=2", {recipeDetail}, {meals, activities}},
      {"exercise", "activities_list WHERE ActivityID=1", {activities, "activities_sample"}, {meals}}};
  for (const Case &c : cases) {
    FullFile file;
    file.database->Execute(QStringLiteral("DELETE FROM ") + c.parent);
    for (const QString &table : c.emptied) EXPECT_EQ(file.Count(table), 0) << c.what << ' ' << table.toStdString();
    for (const QString &table : c.kept) EXPECT_GT(file.Count(table), 0) << c.what << ' ' << table.toStdString();
  }
}

TEST(Schema, OnlyRewardsMayBeWrittenBeforeTheirPerson) {
  FreshFile file;
  file.database->Execute("INSERT INTO meals_list ( MealID ) VALUES ( 1 );");
  file.database->Execute("INSERT INTO activities_list ( ActivityID ) VALUES ( 1 );");
  for (const QString &table : personTables) {
    if (table == "rewards") {
      EXPECT_NO_THROW(AddRow(*file.database, table, 1));
    } else {
      EXPECT_THROW(AddRow(*file.database, table, 1), Error) << table.toStdString();
    }
  }
}

TEST(Schema, KeysRefuseASecondRow) {
  FullFile file;
  for (const QString &table : personTables) {
    EXPECT_THROW(AddRow(*file.database, table, 5), Error) << table.toStdString();
  }
}

TEST(Schema, AnEntryIsNotPlannedUnlessItSaysSo) {
  FullFile file;
  EXPECT_EQ(file.Count("meals", "IsPlanned=False"), 2);
  EXPECT_EQ(file.Count("activities", "IsPlanned=False"), 2);
}

TEST(Schema, SavedQueriesSumADaysEatenAndBurnedCalories) {
  FreshFile file;
  Database &database = *file.database;
  database.Execute("INSERT INTO people ( PersonID ) VALUES ( 1 );");
  database.Execute("INSERT INTO people ( PersonID ) VALUES ( 2 );");
  const auto eat = [&database](int person, int record, int day, const Value &calories, bool planned) {
    database.Execute(
        "INSERT INTO meals ( PersonID, RecordID, ThisDate, Calories, IsPlanned ) "
        "VALUES ( ?, ?, ?, ?, ? );",
        {person, record, QDate(2026, 3, day), calories, planned});
    database.Execute(
        "INSERT INTO activities ( PersonID, RecordID, ThisDate, Calories, IsPlanned ) "
        "VALUES ( ?, ?, ?, ?, ? );",
        {person, record, QDate(2026, 3, day), calories, planned});
  };
  eat(1, 1, 1, 900, true);  // the day's first row is a plan
  eat(1, 2, 1, 100, false);
  eat(1, 3, 1, 250.5, false);
  eat(1, 4, 2, 800, true);  // nothing eaten
  eat(1, 5, 3, Value(), false);
  eat(2, 1, 1, 70, false);
  for (const auto &[query, column] :
       {std::pair{"qryCalorieSumMeals", "CaloriesEaten"}, std::pair{"qryCalorieSumActivities", "CaloriesBurned"}}) {
    Recordset rows =
        database.OpenRecordset(QStringLiteral("SELECT %1.* FROM %1 ORDER BY PersonID, ThisDate;").arg(query));
    QStringList found;
    for (; !rows.Eof(); rows.MoveNext()) {
      found.append(rows.Text("PersonID") + QLatin1Char(' ') + rows.Text("ThisDate") + QLatin1Char(' ') +
                   rows.Text(column));
    }
    EXPECT_EQ(found.join("; "), "1 2026-03-01 350.5; 1 2026-03-03 ; 2 2026-03-01 70") << query;
  }
}

namespace {

/// A person's entries from a first day to 11 April 2026, ten meals, two exercises and a weight a day.
void FillDays(SQLite::Database &file, int person, const std::string &from) {
  const std::string id = std::to_string(person);
  const std::string days = "WITH RECURSIVE days(d, n) AS (SELECT '" + from +
                           "', 0 UNION ALL SELECT date(d, '+1 day'), n + 1 FROM days WHERE d < '2026-04-11'), "
                           "entries(k) AS (SELECT 1 UNION ALL SELECT k + 1 FROM entries WHERE k < 10) ";
  file.exec("INSERT INTO people (PersonID) VALUES (" + id + ")");
  file.exec("INSERT INTO weight_loss " + days + "SELECT " + id + ", d, 180, 0 FROM days");
  for (const char *table : {"notes", "measurements", "other_daily_data"}) {
    file.exec("INSERT INTO " + std::string(table) + " (PersonID, RecordID, ThisDate) " + days + "SELECT " + id +
              ", n + 1, d FROM days");
  }
  file.exec("INSERT INTO meals (PersonID, RecordID, ThisDate, MealTypeID, MealID, Calories, Carbs) " + days +
            "SELECT " + id + ", n * 10 + k, d, 1 + k % 5, 1 + k, 150, 20 FROM days, entries");
  file.exec("INSERT INTO activities (PersonID, RecordID, ThisDate, ActivityID, Calories) " + days + "SELECT " + id +
            ", n * 2 + k, d, k, 100 FROM days, entries WHERE k <= 2");
}

/// Work that a statement takes, in steps of SQLite's machine, in a file with six weeks of one person, or with twenty
/// years of three people of whom the second has as much in the six weeks.
int StepsOf(SQLite::Database &file, const std::string &statement) {
  sqlite3_stmt *query = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(file.getHandle(), statement.c_str(), -1, &query, nullptr), SQLITE_OK) << statement;
  while (sqlite3_step(query) == SQLITE_ROW) {
  }
  const int steps = sqlite3_stmt_status(query, SQLITE_STMTSTATUS_VM_STEP, 0);
  sqlite3_finalize(query);
  return steps;
}

std::unique_ptr<SQLite::Database> Diary(FreshFile &fresh, const std::string &from, std::initializer_list<int> people) {
  fresh.database.reset();
  auto file = std::make_unique<SQLite::Database>(fresh.Path().toStdString(), SQLite::OPEN_READWRITE);
  file->exec("BEGIN");
  for (int i = 1; i <= 11; ++i) {
    file->exec("INSERT INTO meals_list (MealID) VALUES (" + std::to_string(i) + ")");
    file->exec("INSERT INTO activities_list (ActivityID) VALUES (" + std::to_string(i) + ")");
  }
  for (const int person : people) FillDays(*file, person, from);
  file->exec(
      "INSERT INTO temp_alldates WITH RECURSIVE days(d, n) AS (SELECT '2026-03-01', 1 UNION ALL SELECT "
      "date(d, '+1 day'), n + 1 FROM days WHERE n < 42) SELECT d, 2, n FROM days");
  file->exec("COMMIT");
  return file;
}

}  // namespace

TEST(Schema, ReadsOfAPersonsDaysCostTheSameAfterTwentyYears) {
  FreshFile young;
  FreshFile old;
  const auto firstWeeks = Diary(young, "2026-03-01", {2});
  const auto twentyYears = Diary(old, "2006-04-11", {1, 2, 3});
  for (
      const char *statement : {
          "SELECT ThisDate, ThisWeight, ThisLoss FROM weight_loss WHERE PersonID=2 AND ThisDate BETWEEN '2026-03-01' "
          "AND '2026-04-11'",
          "SELECT Max(ThisDate) FROM weight_loss WHERE PersonID=2 AND ThisDate<'2026-03-20'",
          "SELECT Min(ThisWeight) FROM weight_loss WHERE PersonID=2 AND ThisDate BETWEEN '2026-03-22' AND '2026-03-28'",
          "SELECT * FROM notes WHERE PersonID=2 AND ThisDate='2026-03-20'",
          "SELECT * FROM measurements WHERE PersonID=2 AND ThisDate<'2026-03-20' ORDER BY ThisDate DESC LIMIT 1",
          "SELECT * FROM other_daily_data WHERE PersonID=2 AND ThisDate='2026-03-20'",
          "SELECT * FROM meals WHERE PersonID=2 AND ThisDate='2026-03-20' AND IsPlanned=0 ORDER BY ThisDate DESC, "
          "MealTypeID ASC, RecordID ASC",
          "SELECT * FROM activities WHERE PersonID=2 AND ThisDate='2026-03-20' AND IsPlanned=0 ORDER BY ThisDate DESC, "
          "RecordID ASC",
          "SELECT PersonID, RecordID FROM meals WHERE PersonID=2 AND IsPlanned=0 ORDER BY ThisDate DESC, MealTypeID "
          "ASC, "
          "RecordID ASC LIMIT 30",
          "SELECT PersonID, ThisDate, Sum(Carbs) FROM meals WHERE IsPlanned=0 GROUP BY PersonID, ThisDate HAVING "
          "PersonID=2 AND ThisDate BETWEEN '2026-03-01' AND '2026-04-11'",
          "SELECT Sum(Calories) FROM activities WHERE PersonID=2 AND ThisDate='2026-03-20' AND IsPlanned=0",
          "SELECT Min(ThisDate) FROM meals WHERE PersonID=2 AND IsPlanned=0",
          "SELECT DISTINCT MealID FROM meals WHERE ThisDate>='2026-03-28' AND PersonID=2",
          "SELECT Max(RecordID)+1 FROM meals WHERE PersonID=2",
          "SELECT days.ThisDate, a.CaloriesBurned, m.CaloriesEaten FROM (temp_alldates AS days LEFT JOIN "
          "qryCalorieSumActivities AS a ON days.PersonID=a.PersonID AND days.ThisDate=a.ThisDate) LEFT JOIN "
          "qryCalorieSumMeals AS m ON days.PersonID=m.PersonID AND days.ThisDate=m.ThisDate WHERE days.PersonID=2",
      }) {
    const int atFirst = StepsOf(*firstWeeks, statement);
    EXPECT_LE(StepsOf(*twentyYears, statement), atFirst + 10 + atFirst / 10) << statement;
  }
}

TEST(Schema, ADeletedFoodIsFoundInTheJournalWithoutReadingIt) {
  FreshFile fresh;
  const auto file = Diary(fresh, "2020-04-11", {1});
  for (const char *statement :
       {"SELECT RecordID FROM meals WHERE MealID=1 LIMIT 5", "SELECT RecordID FROM activities WHERE ActivityID=11",
        "SELECT RecipeID FROM recipe_detail WHERE MealID=1"}) {
    EXPECT_LT(StepsOf(*file, statement), 100) << statement;
  }
}

}  // namespace trimlog
