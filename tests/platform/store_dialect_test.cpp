#include <QDate>

#include "platform/error.h"
#include "platform/store_fixture.h"

namespace trimlog {

class DialectTest : public StoreTest {
 protected:
  DialectTest() {
    const char *statements[] = {
        "INSERT INTO foods (MealID, MealDesc, Calories, Notes) SELECT 10 AS Expr1, \"Apple pie\" AS Expr2, 300 AS Expr3, \"\" AS Expr4;",
        "INSERT INTO foods (MealID, MealDesc, Calories, IsModified) SELECT 11 AS Expr1, \"apple juice\" AS Expr2, 90 AS Expr3, True AS Expr4; ",
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
    for (const char *statement : statements) data->Execute(QString::fromLatin1(statement));
  }
};

TEST_F(DialectTest, ReadsRowsByTheirMeaning) {
  const struct {
    const char *sql;
    const char *rows;
  } cases[] = {
      // dates
      {"SELECT RecordID FROM meals WHERE (((meals.ThisDate) Between #1/31/2004# And #2/3/2004#)) ORDER BY RecordID", "2 / 3"},
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
      {"SELECT MealID FROM foods WHERE MealDesc Like \"#*\" OR MealDesc LIKE \"*[!a-z]pie\" ORDER BY MealID", "10 / 13"},
      {"SELECT MealID FROM foods WHERE (((InStr(1,[MealDesc],Chr(34)))<>0));", "13"},
      {"SELECT MealID FROM foods WHERE ((InStr(1,LCase([MealDesc]),\"juice\"))<>0)", "11"},
      {"SELECT MealID FROM foods WHERE UCase(Left(MealDesc, 1))= \"B\"", "12"},
      {"SELECT \"Copy of \" & foods.MealDesc & Null As Expr2, 1+1 & \"x\" FROM foods WHERE MealID=12", "Copy of Bread|2x"},
      {"SELECT Mid(\"abcdef\",2,3), Right(\"abc\",2), Len(\"abc\"), Trim(\"  a \"), Asc(\"A\"), Val(\"12.5 lbs\"), CStr(1.50)",
       "bcd|bc|3|a|65|12.5|1.5"},
      {"SELECT MealID FROM foods WHERE Notes = \"\"", "10"},
      {"SELECT MealID FROM foods WHERE Notes Is Null And IsNull(Calories)", "13"},
      // numbers
      {"SELECT CInt(2.5), CInt(3.5), CLng(-2.5), CDbl(\"1.5\"), Int(-1.5), Abs(-3), 7/2, IIf(1>2,\"a\",\"b\"), Nz(Null,5)",
       "2|4|-2|1.5|-2|3|3.5|b|5"},
      {"SELECT Max([MealID])+1 AS NextID FROM foods ;", "14"},
      {"SELECT Max([MealID])+1 AS NextID FROM foods WHERE MealID=-99;", ""},
      {"SELECT Sum(Calories), Count(*), Count(Calories), Avg(Calories) FROM foods WHERE MealID<>11", "380|3|2|190"},
      {"SELECT TOP 2 MealID FROM foods ORDER BY MealID DESC", "13 / 12"},
      // joins and groups
      {"SELECT DISTINCT foods.* FROM foods INNER JOIN meals ON foods.MealID = meals.MealID WHERE (((meals.PersonID)=1) AND "
       "((foods.MealID)>11)) ORDER BY foods.MealDesc;",
       "12|Bread|80|||0|"},
      {"SELECT people.PersonName, foods.MealDesc FROM people INNER JOIN (foods INNER JOIN meals ON foods.MealID = meals.MealID) ON "
       "people.PersonID = meals.PersonID WHERE meals.IsPlanned=True;",
       "Ann|Bread"},
      {"SELECT people.PersonID, weight_loss.ThisDate FROM (people LEFT JOIN weight_loss ON (people.PersonID = weight_loss.PersonID) "
       "AND (weight_loss.ThisDate = #2/1/2004#)) ORDER BY people.PersonID",
       "1|2004-02-01 / 2|"},
      {"SELECT DISTINCTROW people.PersonName FROM people INNER JOIN meals ON people.PersonID = meals.PersonID ORDER BY PersonName",
       "Ann / Bob"},
      {"SELECT meals.PersonID, meals.ThisDate, Sum(meals.Calories) AS NutrientSum From meals WHERE (((meals.IsPlanned)=False)) GROUP BY "
       "meals.PersonID, meals.ThisDate HAVING (((meals.PersonID)=1) AND ((meals.ThisDate) Between #1/1/2004# And #2/28/2004#));",
       "1|2004-01-30|300 / 1|2004-02-03|90"},
      {"SELECT MealID FROM foods WHERE MealID In (SELECT MealID FROM meals WHERE PersonID=2) UNION SELECT 99 ORDER BY 1", "10 / 99"},
      {"SELECT [foods].[MealID] From Foods Where (((Foods.MealID) <> 10 And (Foods.MealID) <> 11 And Foods.MealID<>12));", "13"},
      // the number layer
      {"SELECT ThisWeight, ThisLoss FROM weight_loss ORDER BY ThisDate", "185.5|-0.25 / 1234.5|1.01"},
  };
  for (const auto &row : cases) EXPECT_EQ(Rows(QString::fromLatin1(row.sql)), QString::fromLatin1(row.rows)) << row.sql;
}

}  // namespace trimlog
