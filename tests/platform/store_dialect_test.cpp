#include <QDate>

#include "platform/error.h"
#include "platform/store_fixture.h"

namespace trimlog {

class DialectTest : public StoreTest {
 protected:
  DialectTest() {
    const char *statements[] = {
        "INSERT INTO foods (MealID, MealDesc, Calories, Notes) SELECT 10 AS Expr1, \"Apple pie\" AS Expr2, 300 AS "
        "Expr3, \"\" AS Expr4;",
        "INSERT INTO foods (MealID, MealDesc, Calories, IsModified) SELECT 11 AS Expr1, \"apple juice\" AS Expr2, 90 "
        "AS Expr3, True AS Expr4; ",
        "INSERT INTO foods (MealID, MealDesc, Calories) VALUES (12, 'Bread', 80);",
        "INSERT INTO foods (MealID, MealDesc, Calories) VALUES (13, \"5\"\" pipe\", Null);",
        "INSERT INTO meals VALUES (1, 1, #1/30/2004#, 10, 300, False);",
        "INSERT INTO meals VALUES (1, 2, #2/3/2004#, 11, 90, False);",
        "INSERT INTO meals VALUES (1, 3, #2/3/2004#, 12, 80, True);",
        "INSERT INTO meals VALUES (2, 1, #12/1/2003#, 10, 150, 0);",
        "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT 1 AS Expr3, #2/1/2004# AS Expr2, "
        "Format(\"185.5\",\"Standard\") AS Expr1, Format(\"-0.25\",\"Standard\") ; ",
        "INSERT INTO weight_loss ( PersonID, ThisDate, ThisWeight, ThisLoss ) SELECT 1 AS Expr3, #2/8/2004# AS Expr2, "
        "Format(\"1234.5\",\"Standard\") AS Expr1, Format(\"1.005\",\"Standard\") ; ",
    };
    for (const char *statement : statements) data->Execute(statement);
  }
};

TEST_F(DialectTest, ReadsRowsByTheirMeaning) {
  const struct {
    const char *sql, *rows;
  } cases[] = {
      // dates
      {"SELECT RecordID FROM meals WHERE (((meals.ThisDate) Between #1/31/2004# And #2/3/2004#)) ORDER BY RecordID",
       "2 / 3"},
      {"SELECT Max(meals.ThisDate) AS Last From meals WHERE ((meals.PersonID)=1);", "2004-02-03"},
      {"SELECT Max(ThisDate) AS Last FROM meals WHERE PersonID = -99", ""},
      {"SELECT #1/3/04# AS a, Year(#1/3/2004#), Weekday(#1/4/2004#), DateAdd(\"m\",1,#1/31/2004#) AS d, "
       "DateDiff(\"d\",#1/31/2004#,#2/1/2004#)",
       "2004-01-03|2004|1|2004-02-29|1"},
      // truth
      {"SELECT meals.RecordID From meals WHERE (((meals.PersonID) = 1) And ((meals.IsPlanned) = True));", "3"},
      {"SELECT RecordID FROM meals WHERE PersonID = 1 AND IsPlanned = -1", "3"},
      {"SELECT RecordID FROM meals WHERE PersonID=1 AND Not IsPlanned ORDER BY 1 DESC", "2 / 1"},
      {"SELECT IsModified FROM foods ORDER BY MealID", "0 / -1 / 0 / 0"},
      // text
      {"SELECT MealID FROM foods WHERE MealDesc = \"APPLE PIE\"", "10"},
      {"SELECT MealID FROM foods WHERE MealDesc LIKE \"*PP*\" ORDER BY MealID", "10 / 11"},
      {"SELECT MealID FROM foods WHERE MealDesc Like \"[b-c]rea?\"", "12"},
      {"SELECT MealID FROM foods WHERE MealDesc Like \"#*\" OR MealDesc LIKE \"*[!a-z]pie\" ORDER BY MealID",
       "10 / 13"},
      {"SELECT MealID FROM foods WHERE (((InStr(1,[MealDesc],Chr(34)))<>0));", "13"},
      {"SELECT MealID FROM foods WHERE ((InStr(1,LCase([MealDesc]),\"juice\"))<>0)", "11"},
      {"SELECT MealID FROM foods WHERE UCase(Left(MealDesc, 1))= \"B\"", "12"},
      {"SELECT \"Copy of \" & foods.MealDesc & Null As Expr2, 1+1 & \"x\" FROM foods WHERE MealID=12",
       "Copy of Bread|2x"},
      {"SELECT Mid(\"abcdef\",2,3), Right(\"abc\",2), Len(\"abc\"), Trim(\"  a \"), Asc(\"A\"), Val(\"12.5 lbs\"), "
       "CStr(1.50)",
       "bcd|bc|3|a|65|12.5|1.5"},
      {"SELECT MealID FROM foods WHERE Notes = \"\"", "10"},
      {"SELECT MealID FROM foods WHERE Notes Is Null And IsNull(Calories)", "13"},
      // numbers
      {"SELECT CInt(2.5), CInt(3.5), CLng(-2.5), CDbl(\"1.5\"), Int(-1.5), Abs(-3), 7/2, IIf(1>2,\"a\",\"b\"), "
       "Nz(Null,5)",
       "2|4|-2|1.5|-2|3|3.5|b|5"},
      {"SELECT Max([MealID])+1 AS NextID FROM foods ;", "14"},
      {"SELECT Max([MealID])+1 AS NextID FROM foods WHERE MealID=-99;", ""},
      {"SELECT Sum(Calories), Count(*), Count(Calories), Avg(Calories) FROM foods WHERE MealID<>11", "380|3|2|190"},
      {"SELECT TOP 2 MealID FROM foods ORDER BY MealID DESC", "13 / 12"},
      // joins and groups
      {"SELECT DISTINCT foods.* FROM foods INNER JOIN meals ON foods.MealID = meals.MealID WHERE (((meals.PersonID)=1) "
       "AND "
       "((foods.MealID)>11)) ORDER BY foods.MealDesc;",
       "12|Bread|80|||0|"},
      {"SELECT people.PersonName, foods.MealDesc FROM people INNER JOIN (foods INNER JOIN meals ON foods.MealID = "
       "meals.MealID) ON "
       "people.PersonID = meals.PersonID WHERE meals.IsPlanned=True;",
       "Ann|Bread"},
      {"SELECT people.PersonID, weight_loss.ThisDate FROM (people LEFT JOIN weight_loss ON (people.PersonID = "
       "weight_loss.PersonID) "
       "AND (weight_loss.ThisDate = #2/1/2004#)) ORDER BY people.PersonID",
       "1|2004-02-01 / 2|"},
      {"SELECT DISTINCTROW people.PersonName FROM people INNER JOIN meals ON people.PersonID = meals.PersonID ORDER BY "
       "PersonName",
       "Ann / Bob"},
      {"SELECT meals.PersonID, meals.ThisDate, Sum(meals.Calories) AS NutrientSum From meals WHERE "
       "(((meals.IsPlanned)=False)) GROUP BY "
       "meals.PersonID, meals.ThisDate HAVING (((meals.PersonID)=1) AND ((meals.ThisDate) Between #1/1/2004# And "
       "#2/28/2004#));",
       "1|2004-01-30|300 / 1|2004-02-03|90"},
      {"SELECT MealID FROM foods WHERE MealID In (SELECT MealID FROM meals WHERE PersonID=2) UNION SELECT 99 ORDER BY "
       "1",
       "10 / 99"},
      {"SELECT [foods].[MealID] From Foods Where (((Foods.MealID) <> 10 And (Foods.MealID) <> 11 And "
       "Foods.MealID<>12));",
       "13"},
      // the number layer
      {"SELECT ThisWeight, ThisLoss FROM weight_loss ORDER BY ThisDate", "185.5|-0.25 / 1234.5|1.01"}};
  for (const auto &row : cases) EXPECT_EQ(Rows(row.sql), row.rows) << row.sql;
}

TEST_F(DialectTest, WritesByItsMeaning) {
  const struct {
    const char *sql, *check, *rows;
  } cases[] = {
      {"DELETE weight_loss.*, weight_loss.ThisDate FROM weight_loss WHERE ((weight_loss.PersonID=1) AND "
       "(weight_loss.ThisDate=#2/1/2004#)); ",
       "SELECT ThisDate FROM weight_loss", "2004-02-08"},
      {"UPDATE weight_loss SET weight_loss.ThisLoss = Format(\"1,5\",\"Standard\") WHERE ((weight_loss.PersonID=2));",
       "SELECT ThisLoss FROM weight_loss", "1.01"},
      {"UPDATE people SET people.PersonName = \"Eve\", people.Goal = 99.50 WHERE (((people.PersonID)=2));",
       "SELECT PersonName, Goal FROM people WHERE PersonID=2", "Eve|99.5"},
      // keys are carried along and rows go by the relation
      {"UPDATE people SET people.PersonID = 7 WHERE (((people.PersonID)=1));", "SELECT PersonID FROM weight_loss", "7"},
      {"DELETE people.* FROM people WHERE ((people.PersonID) >= 7);", "SELECT Count(*) FROM weight_loss", "0"},
      {"UPDATE foods INNER JOIN meals ON (foods.MealID = meals.MealID) AND (meals.PersonID = 2) SET meals.IsPlanned = "
       "True, "
       "meals.ThisDate = #3/1/2004# , meals.Calories = CInt(meals.Calories*1.03) WHERE (((foods.IsModified)=False));",
       "SELECT RecordID, ThisDate, Calories, IsPlanned FROM meals WHERE PersonID=2", "1|2004-03-01|154|-1"},
      {"UPDATE meals, foods SET meals.MealID = [foods].[MealID] WHERE (((CStr([meals].[Calories]))=[foods].[Notes]));",
       "SELECT MealID FROM meals ORDER BY PersonID, RecordID", "10 / 11 / 12 / 10"},
      {"INSERT INTO foods ( MealID, MealDesc, Calories ) SELECT 20 AS Expr1, \"Copy of \" & foods.MealDesc As Expr2, "
       "foods.Calories "
       "From foods WHERE (((foods.MealID)=12));",
       "SELECT MealDesc, Calories, IsModified FROM foods WHERE MealID=20", "Copy of Bread|80|0"},
      {"INSERT INTO foods (MealID, Calories) SELECT MealID+100, 1.5 FROM meals UNION SELECT 300, \"2.5\"",
       "SELECT MealID, Calories FROM foods WHERE MealID>100 ORDER BY MealID", "110|2 / 111|2 / 112|2 / 300|2"},
      {"SELECT #2/1/2004#  AS ThisDate, 1 As PersonID, False AS Sel, foods.MealDesc INTO temp_days FROM foods WHERE "
       "MealID=12;",
       "SELECT ThisDate, PersonID, Sel, MealDesc FROM temp_days", "2004-02-01|1|0|Bread"},
      {"INSERT INTO temp_days ( PersonID, ThisDate, Sel ) SELECT DISTINCT 2.5, meals.ThisDate, meals.IsPlanned FROM "
       "meals WHERE "
       "PersonID=2;",
       "SELECT PersonID, ThisDate, Sel FROM temp_days WHERE PersonID=2", "2|2004-03-01|-1"},
      {"DELETE meals.* FROM meals INNER JOIN foods ON meals.MealID = foods.MealID WHERE foods.MealDesc LIKE \"apple*\"",
       "SELECT RecordID FROM meals", "3"},
      {"DELETE * FROM meals;", "SELECT RecordID FROM meals", ""},
      {"CREATE VIEW qrySum AS SELECT meals.PersonID, Sum(meals.Calories) AS Eaten FROM meals WHERE "
       "(((meals.IsPlanned)=False)) "
       "GROUP BY meals.PersonID",
       "SELECT people.PersonID, qrySum.Eaten FROM people LEFT JOIN qrySum ON people.PersonID = qrySum.PersonID", "2|"},
      {"ALTER TABLE people ADD COLUMN Marked YESNO", "SELECT Marked FROM people", "0"},
      {"DROP TABLE temp_days", "SELECT Count(*) FROM people", "1"}};
  for (const auto &row : cases) {
    data->Execute(row.sql);
    EXPECT_EQ(Rows(row.check), row.rows) << row.sql;
  }
  EXPECT_FALSE(data->HasTable("temp_days"));
}

TEST_F(DialectTest, TypesOfSelectedValuesLastIntoTheNewTable) {
  data->Execute(
      "SELECT meals.ThisDate, #1/1/2004# AS Since, Max(meals.ThisDate) AS Last, True AS Sel, 1.5 AS Half, "
      "\"a\" AS Word INTO made FROM meals GROUP BY meals.ThisDate");
  const Recordset row = data->OpenRecordset("SELECT made.* FROM made ORDER BY ThisDate");
  const QDate first(2003, 12, 1);
  const Value expected[] = {first, QDate(2004, 1, 1), first, true, 1.5, "a"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(row.Field(i), expected[i]) << i;
    EXPECT_EQ(row.Field(i).typeId(), expected[i].typeId()) << i;
  }
}

TEST_F(DialectTest, RefusesWhatItDoesNotKnowAndNamesIt) {
  const struct {
    const char *sql;
    int number;
    const char *named;
  } cases[] = {
      {"SELECT Frobnicate(1)", error_number::invalidSql, "Frobnicate"},
      {"SELECT StrConv(MealDesc, 3) FROM foods", error_number::invalidSql, "StrConv"},
      {"SELECT randomblob(5)", error_number::invalidSql, "randomblob"},
      {"SELECT Format(1, \"mmmm\")", error_number::invalidSql, "Standard"},
      {"SELECT Left(\"a\")", error_number::invalidSql, "Left"},
      {"SELECT 2 ^ 3", error_number::invalidSql, "^"},
      {"SELECT 7 Mod 3", error_number::invalidSql, "Mod"},
      {"SELECT #2/1/2004# - 13", error_number::invalidSql, "DateAdd"},
      {"SELECT #13/1/2004#", error_number::invalidSql, "#13/1/2004#"},
      {"SELECT #2/30/2004#", error_number::invalidSql, "#2/30/2004#"},
      {"SELECT \"open", error_number::invalidSql, "open"},
      {"SELECT MealID FROM foods; DELETE foods.* FROM foods", error_number::invalidSql, "DELETE"},
      {"TRANSFORM Sum(a) SELECT b FROM c", error_number::invalidSql, "TRANSFORM"},
      {"PRAGMA journal_mode = WAL", error_number::invalidSql, "PRAGMA"},
      {"SELECT MealID FROM foods LIMIT 1", error_number::invalidSql, "FROM"},
      {"SELECT Nothing FROM foods", error_number::unknownColumn, "Nothing"},
      {"SELECT [Nothing] FROM foods", error_number::unknownColumn, "Nothing"},
      {"SELECT a FROM nowhere", error_number::unknownTable, "nowhere"},
      {"UPDATE foods SET foods.Nothing = 1", error_number::unknownColumn, "Nothing"},
      {"UPDATE foods LEFT JOIN meals ON foods.MealID = meals.MealID SET foods.Calories = 1", error_number::invalidSql,
       "LEFT JOIN"},
      {"INSERT INTO nowhere (a) SELECT 1", error_number::unknownTable, "nowhere"},
      {"INSERT INTO foods (MealID) VALUES (?)", error_number::unknownColumn, "parameter"},
      {"SELECT 1/0", error_number::divisionByZero, "zero"},
      {"SELECT 1 AS a INTO people", error_number::tableExists, "people"},
      {"CREATE TABLE t (a BLOB)", error_number::invalidSql, "BLOB"},
      {"INSERT INTO people (PersonID) SELECT 1", error_number::duplicateKey, "PersonID"},
      {"INSERT INTO weight_loss (PersonID, ThisDate) SELECT 55, #1/1/2004#", error_number::relation, "relation"}};
  for (const auto &row : cases) {
    EXPECT_EQ(ErrorOf(row.sql), row.number) << row.sql << ": " << description.toStdString();
    EXPECT_TRUE(description.contains(row.named)) << row.sql << ": " << description.toStdString();
  }
}

TEST_F(DialectTest, NoTextCanBecomeAPartOfAStatement) {
  const QString texts[] = {
      "O'Brien",
      "5\" pipe",
      "Robert\"); DELETE people.* FROM people; --",
      "'; DROP TABLE people; --",
      "#1/1/2004# [x] ?1 ? \\ %",
      "\U0001F34E \u00e9\u00df \u4f60",
      QStringLiteral("a") + QChar(0) + "b",
      QString(10000, u'x'),
      QString(),
  };
  const QString insert = "INSERT INTO foods (MealID, MealDesc, Notes) SELECT 500, ?, %1;";
  for (const QString &text : texts) {
    data->Execute(insert.arg(QuoteText(text)), {text});
    for (const char *column : {"MealDesc", "Notes"}) {
      const QString name = column;
      EXPECT_EQ(data->OpenRecordset("SELECT * FROM foods WHERE MealID=500").Field(name).toString(), text);
      EXPECT_EQ(Rows(QStringLiteral("SELECT MealID FROM foods WHERE %1 = %2 AND MealID>20").arg(name, QuoteText(text))),
                "500")
          << text.left(50).toStdString();
      EXPECT_EQ(Rows(QStringLiteral("SELECT MealID FROM foods WHERE %1 = ? AND MealID>20").arg(name), {text}), "500");
    }
    data->Execute("DELETE foods.* FROM foods WHERE MealID=500");
  }
  EXPECT_EQ(Rows("SELECT Count(*) FROM people"), "2");
}

TEST_F(DialectTest, StatementsThatDifferInLiteralsAnswerEachForItself) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Rows("SELECT MealID FROM foods WHERE MealDesc = \"bread\""), "12");
    EXPECT_EQ(Rows("SELECT MealID FROM foods WHERE MealDesc = \"APPLE JUICE\""), "11");
    EXPECT_EQ(Rows("SELECT 1 AS a, 2 AS b ORDER BY 1"), "1|2");
    EXPECT_EQ(Rows("SELECT MealID, Calories FROM foods WHERE Calories>0 ORDER BY 1"), "10|300 / 11|90 / 12|80");
    EXPECT_EQ(Rows("SELECT MealID, Calories FROM foods WHERE Calories>0 ORDER BY 2"), "12|80 / 11|90 / 10|300");
    EXPECT_EQ(Rows("SELECT #1/1/2004# AS a"), "2004-01-01");
    EXPECT_EQ(Rows("SELECT \"1/1/2004\" AS a"), "1/1/2004");
    EXPECT_EQ(Rows("SELECT Calories FROM foods WHERE MealID = ? AND Calories > 50 AND MealDesc = ?", {12, "BREAD"}),
              "80");
  }
  // A statement known before a column came must show it afterwards.
  EXPECT_EQ(data->OpenRecordset("SELECT people.* FROM people").FieldNames().size(), 4);
  data->Execute("ALTER TABLE people ADD COLUMN Extra DATETIME");
  EXPECT_EQ(data->OpenRecordset("SELECT people.* FROM people").FieldNames().size(), 5);
}

TEST_F(DialectTest, ReachesASideFileAndLeavesItClosed) {
  const QString other = directory.filePath("o'ther file.dat");
  {
    auto side = Database::Create(other);
    side->Execute("CREATE TABLE foods (MealID INTEGER PRIMARY KEY, Calories SHORT)");
    side->Execute("INSERT INTO foods VALUES (77, 5)");
  }
  EXPECT_EQ(Rows(QStringLiteral("SELECT foods.MealID FROM foods IN %1 WHERE foods.Calories=5").arg(QuoteText(other))),
            "77");
  data->Execute(
      QStringLiteral("INSERT INTO foods (MealID, Calories) SELECT foods.MealID, foods.Calories FROM foods IN %1")
          .arg(QuoteText(other)));
  data->Execute(
      QStringLiteral("INSERT INTO foods IN %1 ( MealID, Calories ) SELECT foods.MealID, 2.5 FROM foods WHERE MealID=12")
          .arg(QuoteText(other)));
  auto side = Database::Open(other);
  EXPECT_EQ(RowsOf(*side, "SELECT * FROM foods"), "12|2 / 77|5");
  EXPECT_EQ(ErrorOf(QStringLiteral("SELECT * FROM foods IN \"%1\"").arg(other + u'x')), error_number::fileMissing);
  EXPECT_FALSE(QFile::exists(other + u'x'));
}

}  // namespace trimlog
