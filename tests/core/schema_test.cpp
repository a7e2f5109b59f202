#include "core/schema.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "support/fresh_file.h"

namespace trimlog {

namespace {

const QStringList personTables = {QStringLiteral("weight_loss"),
                                  QStringLiteral("notes"),
                                  QStringLiteral("measurements"),
                                  QStringLiteral("meals"),
                                  QStringLiteral("activities"),
                                  QStringLiteral("other_daily_data"),
                                  QStringLiteral("rewards"),
                                  QStringLiteral("serava_journal"),
                                  QStringLiteral("weight_loss_sample"),
                                  QStringLiteral("notes_sample"),
                                  QStringLiteral("measurements_sample"),
                                  QStringLiteral("meals_sample"),
                                  QStringLiteral("activities_sample")};

/// One row of a table whose keys and relations point to person `person`, food 1, exercise 1, recipe 2.
void AddRow(Database &database, const QString &name, int person) {
  const SchemaTable &table = FindSchemaTable(name);
  const QHash<QString, Value> known = {
      {QStringLiteral("PersonID"), person}, {QStringLiteral("RecordID"), 1},
      {QStringLiteral("MealID"), 1},        {QStringLiteral("RecipeID"), 2},
      {QStringLiteral("ActivityID"), 1},    {QStringLiteral("ThisDate"), QDate(2026, 3, 1)}};
  QStringList columns;
  QStringList marks;
  Params values;
  for (const SchemaColumn &column : table.columns) {
    if (!known.contains(column.name)) continue;
    columns.append(column.name);
    marks.append(QStringLiteral("?"));
    values.append(known.value(column.name));
  }
  database.Execute(QStringLiteral("INSERT INTO %1 ( %2 ) VALUES ( %3 );")
                       .arg(name, columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
                   values);
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
    AddRow(*database, QStringLiteral("recipe_detail"), 0);
  }
};

}  // namespace

TEST(Schema, APersonsRowsGoWithThePersonAndFollowANewNumber) {
  FullFile file;
  file.database->Execute(QStringLiteral("UPDATE people SET people.PersonID = 9 WHERE ((people.PersonID)=5);"));
  for (const QString &table : personTables) {
    EXPECT_EQ(file.Count(table, QStringLiteral("PersonID=9")), 1) << table.toStdString();
    EXPECT_EQ(file.Count(table, QStringLiteral("PersonID=5")), 0) << table.toStdString();
  }
  file.database->Execute(QStringLiteral("DELETE people.* FROM people WHERE ((people.PersonID)=9);"));
  for (const QString &table : personTables) {
    EXPECT_EQ(file.Count(table, QStringLiteral("PersonID=9")), 0) << table.toStdString();
    EXPECT_EQ(file.Count(table, QStringLiteral("PersonID=6")), 1) << table.toStdString();
  }
}

TEST(Schema, EntriesGoWithTheirFoodTheirRecipeAndTheirExercise) {
  struct Case {
    const char *what;
    const char *parent;
    QStringList emptied;
    QStringList kept;
  };
  const QString meals = QStringLiteral("meals");
  const QString activities = QStringLiteral("activities");
  const QString recipeDetail = QStringLiteral("recipe_detail");
  const std::vector<Case> cases = {
      {"food", "meals_list WHERE MealID=1", {meals, QStringLiteral("meals_sample"), recipeDetail}, {activities}},
      {"recipe", "meals_list WHERE MealID=2", {recipeDetail}, {meals, activities}},
      {"exercise", "activities_list WHERE ActivityID=1", {activities, QStringLiteral("activities_sample")}, {meals}},
  };
  for (const Case &c : cases) {
    FullFile file;
    file.database->Execute(QStringLiteral("DELETE FROM ") + QString::fromLatin1(c.parent));
    for (const QString &table : c.emptied) EXPECT_EQ(file.Count(table), 0) << c.what << ' ' << table.toStdString();
    for (const QString &table : c.kept) EXPECT_GT(file.Count(table), 0) << c.what << ' ' << table.toStdString();
  }
}

TEST(Schema, OnlyRewardsMayBeWrittenBeforeTheirPerson) {
  FreshFile file;
  file.database->Execute(QStringLiteral("INSERT INTO meals_list ( MealID ) VALUES ( 1 );"));
  file.database->Execute(QStringLiteral("INSERT INTO activities_list ( ActivityID ) VALUES ( 1 );"));
  for (const QString &table : personTables) {
    if (table == QLatin1String("rewards")) {
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
  EXPECT_EQ(file.Count(QStringLiteral("meals"), QStringLiteral("IsPlanned=False")), 2);
  EXPECT_EQ(file.Count(QStringLiteral("activities"), QStringLiteral("IsPlanned=False")), 2);
}

TEST(Schema, SavedQueriesSumADaysEatenAndBurnedCalories) {
  FreshFile file;
  Database &database = *file.database;
  database.Execute(QStringLiteral("INSERT INTO people ( PersonID ) VALUES ( 1 );"));
  database.Execute(QStringLiteral("INSERT INTO people ( PersonID ) VALUES ( 2 );"));
  const auto eat = [&database](int person, int record, int day, const Value &calories, bool planned) {
    database.Execute(QStringLiteral("INSERT INTO meals ( PersonID, RecordID, ThisDate, Calories, IsPlanned ) "
                                    "VALUES ( ?, ?, ?, ?, ? );"),
                     {person, record, QDate(2026, 3, day), calories, planned});
    database.Execute(QStringLiteral("INSERT INTO activities ( PersonID, RecordID, ThisDate, Calories, IsPlanned ) "
                                    "VALUES ( ?, ?, ?, ?, ? );"),
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
    Recordset rows = database.OpenRecordset(
        QStringLiteral("SELECT %1.* FROM %1 ORDER BY PersonID, ThisDate;").arg(QString::fromLatin1(query)));
    QStringList found;
    for (; !rows.Eof(); rows.MoveNext()) {
      found.append(rows.Text(QStringLiteral("PersonID")) + QLatin1Char(' ') + rows.Text(QStringLiteral("ThisDate")) +
                   QLatin1Char(' ') + rows.Text(QString::fromLatin1(column)));
    }
    EXPECT_EQ(found.join(QStringLiteral("; ")).toStdString(), "1 2026-03-01 350.5; 1 2026-03-03 ; 2 2026-03-01 70")
        << query;
  }
}

// A read of one person's day or month goes through an index, so that it costs the same after twenty years: its plan may
// scan the range of days asked for, but no table of entries.
TEST(Schema, ReadsOfAPersonsDaysScanNoTable) {
  FreshFile file;
  file.database.reset();
  SQLite::Database plain(file.Path().toStdString());
  for (const char *statement : {
           "SELECT ThisDate, ThisWeight, ThisLoss FROM weight_loss WHERE PersonID=1 AND ThisDate BETWEEN '2026-03-01' "
           "AND '2026-04-11'",
           "SELECT Max(ThisDate) FROM weight_loss WHERE PersonID=1 AND ThisDate<'2026-03-01'",
           "SELECT Min(ThisWeight) FROM weight_loss WHERE PersonID=1 AND ThisDate BETWEEN '2026-02-22' AND "
           "'2026-02-28'",
           "SELECT * FROM notes WHERE PersonID=1 AND ThisDate='2026-03-01'",
           "SELECT * FROM measurements WHERE PersonID=1 AND ThisDate<'2026-03-01' ORDER BY ThisDate DESC",
           "SELECT * FROM other_daily_data WHERE PersonID=1 AND ThisDate='2026-03-01'",
           "SELECT * FROM serava_journal WHERE PersonID=1 AND ThisDate='2026-03-01'",
           "SELECT * FROM meals WHERE PersonID=1 AND ThisDate='2026-03-01' AND IsPlanned=0 ORDER BY ThisDate DESC, "
           "MealTypeID ASC, RecordID ASC",
           "SELECT PersonID, RecordID FROM meals WHERE PersonID=1 AND IsPlanned=0 ORDER BY ThisDate DESC, MealTypeID "
           "ASC, "
           "RecordID ASC",
           "SELECT * FROM activities WHERE PersonID=1 AND IsPlanned=0 ORDER BY ThisDate DESC, RecordID ASC",
           "SELECT PersonID, ThisDate, Sum(Carbs) FROM meals WHERE IsPlanned=0 GROUP BY PersonID, ThisDate HAVING "
           "PersonID=1 AND ThisDate BETWEEN '2026-03-01' AND '2026-04-11'",
           "SELECT Min(ThisDate) FROM meals WHERE PersonID=1 AND IsPlanned=0",
           "SELECT DISTINCT MealID FROM meals WHERE ThisDate>='2026-02-16' AND PersonID=1",
           "SELECT Max(RecordID)+1 FROM meals WHERE PersonID=1",
           "SELECT days.ThisDate, a.CaloriesBurned, m.CaloriesEaten FROM (temp_alldates AS days LEFT JOIN "
           "qryCalorieSumActivities AS a ON days.PersonID=a.PersonID AND days.ThisDate=a.ThisDate) LEFT JOIN "
           "qryCalorieSumMeals AS m ON days.PersonID=m.PersonID AND days.ThisDate=m.ThisDate WHERE days.PersonID=1",
           "DELETE FROM meals WHERE MealID=1",
           "DELETE FROM activities WHERE ActivityID=1",
       }) {
    SQLite::Statement plan(plain, std::string("EXPLAIN QUERY PLAN ") + statement);
    while (plan.executeStep()) {
      const std::string step = plan.getColumn(3).getString();
      const bool scans = step.rfind("SCAN", 0) == 0 && step != "SCAN days";
      EXPECT_FALSE(scans || step.rfind("MATERIALIZE", 0) == 0) << statement << "\n  " << step;
      if (std::string(statement).find("FROM meals WHERE PersonID=1 AND IsPlanned=0 ORDER") != std::string::npos) {
        EXPECT_EQ(step.find("TEMP B-TREE"), std::string::npos) << statement << "\n  " << step;
      }
    }
  }
}

}  // namespace trimlog
