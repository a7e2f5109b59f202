#include <QDate>

#include "platform/error.h"
#include "platform/store_fixture.h"

namespace trimlog {

class ValuesTest : public StoreTest {};

TEST_F(ValuesTest, EveryWayOfWritingKeepsTheRulesOfTheColumn) {
  data->Execute(
      "CREATE TABLE kinds (ID INTEGER PRIMARY KEY, Truth BOOLEAN, Small BYTE, Half SMALLINT, Whole LONG, "
      "Narrow SINGLE, Wide DOUBLE, Money DECIMAL2, Day DATETIME, Short TEXT(5), Long MEMO)");
  data->Execute("INSERT INTO kinds (ID) SELECT 1");
  const int overflow = error_number::overflow, mismatch = error_number::typeMismatch;
  const struct {
    const char *column;
    Value value;
    QString raw;  ///< as SQLite finds it
    int error = 0;
  } cases[] = {{"Truth", true, "integer 1"},
               {"Truth", -1, "integer 1"},
               {"Truth", 0, "integer 0"},
               {"Truth", Value(), "integer 0"},
               {"Truth", "True", "integer 1"},
               {"Truth", "maybe", "", mismatch},
               {"Small", 0.5, "integer 0"},
               {"Small", 1.5, "integer 2"},
               {"Small", 2.5, "integer 2"},
               {"Small", 255.5, "", overflow},
               {"Small", -1, "", overflow},
               {"Half", -2.5, "integer -2"},
               {"Half", -3.5, "integer -4"},
               {"Half", 32767.4, "integer 32767"},
               {"Half", 32767.5, "", overflow},
               {"Half", "12.6", "integer 13"},
               {"Half", "", "", mismatch},
               {"Half", "abc", "", mismatch},
               {"Whole", 2147483647, "integer 2147483647"},
               {"Whole", 2147483648.0, "", overflow},
               {"Whole", -2147483648.0, "integer -2147483648"},
               {"Narrow", 0.1, "real 0.1"},
               {"Narrow", 16777217, "real 16777216.0"},
               {"Narrow", 1e39, "", overflow},
               {"Wide", 0.1, "real 0.1"},
               {"Wide", 3, "real 3.0"},
               {"Wide", "1e400", "", mismatch},
               {"Money", 1.005, "real 1.01"},
               {"Money", -2.675, "real -2.68"},
               {"Money", "1234.5", "real 1234.5"},
               {"Money", "1,234.5", "", mismatch},
               {"Day", QDate(2004, 2, 29), "text 2004-02-29"},
               {"Day", QDateTime(QDate(2004, 2, 29), QTime(13, 5)), "text 2004-02-29"},
               {"Day", "2004-02-29 13:05:00", "text 2004-02-29"},
               {"Day", "2003-02-29", "", mismatch},
               {"Day", 38000, "", mismatch},
               {"Day", Value(), ""},
               {"Short", "abcde", "text abcde"},
               {"Short", "abcdef", "", error_number::textTooLong},
               {"Short", 120, "text 120"},
               {"Short", 120.5, "text 120.5"},
               {"Short", "", "text "},
               {"Short", Value(), ""},
               {"Long", "0123", "text 0123"},
               {"Long", QString(), "text "}};
  for (const auto &row : cases) {
    const QString column = row.column;
    const auto trace = QStringLiteral("%1 <- %2 ").arg(column, row.value.toString()).toStdString();
    const struct {
      QString sql, where;
    } ways[] = {{"UPDATE kinds SET kinds.[%1] = ? WHERE ID = 1", "kinds WHERE ID = 1"},
                {"INSERT INTO kinds (ID, [%1]) SELECT 2 AS Expr1, ? AS Expr2", "kinds WHERE ID = 2"},
                {"INSERT INTO kinds (ID, [%1]) VALUES (2, ?)", "kinds WHERE ID = 2"},
                {"INSERT INTO kinds ([%1], ID) SELECT DISTINCT ?, 2 FROM people", "kinds WHERE ID = 2"}};
    for (const auto &way : ways) {
      EXPECT_EQ(ErrorOf(way.sql.arg(column), {row.value}), row.error) << trace << way.sql.toStdString();
      if (row.error == 0) {
        EXPECT_EQ(Raw(QStringLiteral("[%1]").arg(column), way.where), row.raw) << trace << way.sql.toStdString();
      } else {
        EXPECT_TRUE(description.contains(column)) << trace << description.toStdString();
      }
      data->Execute("DELETE FROM kinds WHERE ID = 2");
    }
    Recordset rows = data->OpenRecordset("SELECT kinds.* FROM kinds WHERE ID=1", {}, RecordsetKind::Dynaset);
    rows.Edit();
    int error = 0;
    try {
      rows.SetField(column, row.value);
      rows.Update();
    } catch (const Error &failure) {
      error = failure.Number();
    }
    EXPECT_EQ(error, row.error) << trace;
    if (error == 0) {
      EXPECT_EQ(Raw(QStringLiteral("[%1]").arg(column), "kinds WHERE ID = 1"), row.raw) << trace;
    }
  }
}

TEST_F(ValuesTest, GivesValuesOfTheColumnsKind) {
  data->Execute(
      "INSERT INTO foods (MealID, MealDesc, Calories, Water, TransFat, IsModified) SELECT 1, \"7\", 2, 0.1, 3, -1");
  data->Execute("INSERT INTO weight_loss SELECT 1, #1/3/2004#, 185, Null");
  const Recordset food = data->OpenRecordset("SELECT * FROM foods");
  EXPECT_EQ(food.Field("IsModified"), Value(true));
  EXPECT_EQ(food.Field("IsModified").typeId(), QMetaType::Bool);
  EXPECT_EQ(food.Field("foods.Calories").typeId(), QMetaType::Int);
  EXPECT_EQ(food.Field("[TransFat]").typeId(), QMetaType::Double);
  EXPECT_EQ(food.Text("mealdesc"), "7");
  EXPECT_EQ(food.Text("Water"), "0.1");
  EXPECT_EQ(food.Text("IsModified"), "-1");
  EXPECT_FALSE(food.Field("Notes").isValid());
  EXPECT_EQ(food.Number("Notes"), 0);
  const Recordset weight = data->OpenRecordset("SELECT ThisDate, ThisWeight, ThisLoss FROM weight_loss");
  EXPECT_EQ(weight.Field(0), Value(QDate(2004, 1, 3)));
  EXPECT_EQ(weight.Field(1).typeId(), QMetaType::Double);
  EXPECT_EQ(weight.Text("ThisWeight"), "185");
  // Max over dates is a date.
  EXPECT_EQ(data->OpenRecordset("SELECT Max(ThisDate) AS Last FROM weight_loss").Field(0), Value(QDate(2004, 1, 3)));
}

TEST_F(ValuesTest, TextIgnoresCaseInEveryAlphabetAndSortsSo) {
  const char *names[] = {"\u00c9clair", "zebra", "Apple", "apple", "\u042f\u0431\u043b\u043e\u043a\u043e"};
  int id = 0;
  for (const char *name : names)
    data->Execute("INSERT INTO foods (MealID, MealDesc) VALUES (?, ?)", {++id, QString::fromUtf8(name)});
  const auto find = [this](const char *text) {
    return Rows("SELECT MealID FROM foods WHERE MealDesc = ? ORDER BY MealID", {QString::fromUtf8(text)});
  };
  EXPECT_EQ(find("\u00e9CLAIR"), "1");
  EXPECT_EQ(find("APPLE"), "3 / 4");
  EXPECT_EQ(find("\u044f\u0431\u043b\u043e\u043a\u043e"), "5");
  EXPECT_EQ(Rows("SELECT MealID FROM foods WHERE MealDesc LIKE \"*\u00e9c*\""), "1");
  EXPECT_EQ(Rows("SELECT Count(*) FROM (SELECT DISTINCT MealDesc FROM foods)"), "4");
  EXPECT_EQ(Rows("SELECT MealID FROM foods ORDER BY MealDesc, MealID"), "3 / 4 / 2 / 1 / 5");
}

}  // namespace trimlog
