// The writers of foods: what they store, what they leave alone, what they announce.
#include "catalogs/food_catalog.h"

#include "catalogs/food_columns.h"
#include "catalogs/food_list_kind.h"
#include "foods_fixture.h"
#include "platform/grid/grid_row_edit.h"

namespace trimlog {
namespace {

class FoodCatalog : public Foods {
 protected:
  /// A value for each nutrient that no other one has, and that its pattern shows in full.
  static double Distinct(int nutrientID) { return 100 + nutrientID; }
  static FoodRecord Full(const QString &name) {
    FoodRecord food;
    food.MealDesc = name;
    food.Amount = "1 cup";
    food.MealGroupID = 7;
    food.GIValue = 55;
    for (int id = 1; id <= nutrientCount; ++id) food.nutrients.Set(id, Distinct(id));
    return food;
  }
  /// One line of the file: every column of a food.
  QString Line(int mealID) { return session.Rows("SELECT meals_list.* FROM meals_list WHERE (MealID=?);", {mealID}); }
  void ExpectAllNutrients(int mealID, const char *writer) {
    for (int id = 1; id <= nutrientCount; ++id) {
      const QString &field = Definition(session->nutrients, id).fieldName;
      EXPECT_EQ(session.ValueOf(field, "meals_list", QStringLiteral("MealID=%1").arg(mealID)),
                QString::number(Distinct(id)))
          << writer << ": " << field.toStdString();
    }
  }
  QList<QVariantMap> Row(int mealID) {
    const Recordset row =
        session.Data().OpenRecordset("SELECT meals_list.* FROM meals_list WHERE (MealID=?);", {mealID});
    QVariantMap values;
    for (int column = 0; column < row.FieldNames().size(); ++column)
      values[row.FieldNames()[column]] = row.Field(column);
    return {values};
  }
};

TEST_F(FoodCatalog, EveryWriterStoresAll35NutrientsAndTouchesNoOtherFood) {
  const int other = AddFood(*session, Full("Another one"));
  const QString otherBefore = Line(other), shippedBefore = Line(1);

  const int added = AddFood(*session, Full("Soup"));
  EXPECT_EQ(added, other + 1);
  ExpectAllNutrients(added, "AddFood");
  EXPECT_EQ(ReadFood(*session, added).Amount, "1 cup");
  EXPECT_EQ(ReadFood(*session, added).GIValue, 55);

  const int copied = CopyFood(*session, added);
  ExpectAllNutrients(copied, "CopyFood");
  const FoodRecord copy = ReadFood(*session, copied);
  EXPECT_EQ(copy.MealDesc, "Soup");
  EXPECT_EQ(copy.MealGroupID, 7);
  EXPECT_EQ(copy.RecordTypeID, food_kind::myFoods);
  EXPECT_TRUE(copy.Amount.isEmpty() && !copy.GIValue) << "serving and glycemic value stay behind";

  FoodRecord changed = ReadFood(*session, 2);
  changed.nutrients = copy.nutrients;
  changed.MealDesc = "Butter, 12\" block";
  changed.MealGroupID = 3;
  SaveFood(*session, changed);
  ExpectAllNutrients(2, "SaveFood");
  EXPECT_EQ(ReadFood(*session, 2).MealDesc, "Butter, 12'' block");
  EXPECT_EQ(ReadFood(*session, 2).MealGroupID, 3);
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", "MealID=2"), "-1");

  const std::vector<qint64> pasted = PasteFoods(*session, Row(2) + Row(added));
  ASSERT_EQ(pasted.size(), 2u);
  ExpectAllNutrients(static_cast<int>(pasted[0]), "PasteFoods");
  EXPECT_EQ(ReadFood(*session, static_cast<int>(pasted[1])).Amount, "1 cup");

  EXPECT_EQ(Line(other), otherBefore);
  EXPECT_EQ(Line(1), shippedBefore);
}

TEST_F(FoodCatalog, WhatIsStoredIsWhatIsShown) {
  FoodRecord food;
  food.MealDesc = "12\" sub";
  food.Amount = "6\"";
  food.nutrients.Set(1, 100.5);
  food.nutrients.Set(2, 1.005);
  food.nutrients.Set(7, -0.0005);
  const int mealID = AddFood(*session, food);
  const FoodRecord stored = ReadFood(*session, mealID);
  EXPECT_EQ(stored.MealDesc, "12'' sub");
  EXPECT_EQ(stored.Amount, "6''");
  EXPECT_EQ(stored.nutrients.At(1), 101);
  EXPECT_EQ(stored.nutrients.At(2), 1.01);
  EXPECT_EQ(stored.nutrients.At(7), -0.001);
  EXPECT_EQ(stored.nutrients.At(8), 0) << "left empty";
  EXPECT_FALSE(stored.GIValue);
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", QStringLiteral("MealID=%1").arg(mealID)), "0");
}

TEST_F(FoodCatalog, AFoodThatIsOnlyLookedAtIsNotWritten) {
  session.Data().Execute("UPDATE meals_list SET Fat = 11.5234, Iron = Null, MealDesc = ? WHERE (MealID=1);",
                         {"A 5\" pie "});
  const QString before = Line(1);
  int announced = 0;
  QObject::connect(&session->changes, &DataChanges::Changed, [&](const DataChange &) { ++announced; });
  FoodRecord food = ReadFood(*session, 1);
  food.nutrients.Set(3, 11.52);  // as it is shown
  SaveFood(*session, food);
  EXPECT_EQ(Line(1), before);
  EXPECT_EQ(announced, 0);

  food.nutrients.Set(7, 0);
  SaveFood(*session, food);
  EXPECT_EQ(announced, 1);
  EXPECT_EQ(session.ValueOf("Iron", "meals_list", "MealID=1"), "0");
  EXPECT_EQ(session.ValueOf("Fat", "meals_list", "MealID=1"), "11.5234") << "only what differs";
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", "MealID=1"), "-1");

  food.MealDesc = QString(10000, QLatin1Char('x'));
  EXPECT_THROW(SaveFood(*session, food), Error) << "no description is cut short silently";
}

TEST_F(FoodCatalog, APastedFoodIsNotMistakenForTheShippedOne) {
  const int original = session.ValueOf("MealID", "meals_list", "USDANum=\"01009\"").toInt();
  const int pasted = static_cast<int>(PasteFoods(*session, Row(original)).front());
  const QString where = QStringLiteral("MealID=%1").arg(pasted);
  EXPECT_EQ(session.ValueOf("USDANum", "meals_list", where), "");
  EXPECT_EQ(session.ValueOf("RecordTypeID", "meals_list", where), "2");
  const int copied = CopyFood(*session, original);
  EXPECT_EQ(session.ValueOf("USDANum", "meals_list", QStringLiteral("MealID=%1").arg(copied)), "");
}

TEST_F(FoodCatalog, AFailedWriteLeavesAllAsItWas) {
  session.Data().Execute("UPDATE meals_list SET MealDesc = ? WHERE (MealID=1);", {"A 5\" pie"});
  EXPECT_THROW(CopyFood(*session, 1), Error) << "a double quote comes from elsewhere";
  QVariantMap wrong = Row(2).first();
  wrong["NoSuchColumn"] = 1;
  EXPECT_THROW(PasteFoods(*session, Row(2) + QList<QVariantMap>{wrong}), Error);
  EXPECT_EQ(session.ValueOf("Count(*) AS N", "meals_list", "RecordTypeID=2"), "0");
}

TEST_F(FoodCatalog, ARowEditedInTheGridIsRoundedAndMarked) {
  GridRowEdit row(1, false, [](const QString &field) { return field == "Fat" ? Value(11.52) : Value(); });
  EXPECT_EQ(PrepareEditedFood(session->nutrients, row), "");
  EXPECT_FALSE(row.HasChanges());
  row.Set("Fat", 11.5234);
  PrepareEditedFood(session->nutrients, row);
  EXPECT_FALSE(row.HasChanges()) << "what shows no difference is none";
  row.Set("Fat", 11.525);
  row.Set("Carbs", Value());
  row.Set("Amount", "6\"");
  PrepareEditedFood(session->nutrients, row);
  EXPECT_EQ(row.Get("Fat"), 11.53);
  EXPECT_EQ(row.Get("Amount"), "6''");
  EXPECT_EQ(row.Get("IsModified"), true);
  EXPECT_FALSE(row.IsChanged("MealDesc"));
}

}  // namespace
}  // namespace trimlog
