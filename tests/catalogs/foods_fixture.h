#pragma once

#include <gtest/gtest.h>

#include "catalogs/food_catalog.h"
#include "platform/store/recordset.h"
#include "support/test_session.h"

namespace trimlog {

/// The shipped foods, and ways to add and eat some.
class Foods : public ::testing::Test {
 protected:
  Foods() {
    FillNutrientDefinitions(session->nutrients, session.Data());
    FillSelectedNutrientsArray(session->nutrients, session.Data());
  }
  int Add(const QString &name, int kind = 2, int group = 1) {
    FoodRecord food;
    food.MealDesc = name;
    food.MealGroupID = group;
    const int mealID = AddFood(*session, food);
    session.Data().Execute("UPDATE meals_list SET RecordTypeID = ? WHERE (MealID=?);", {kind, mealID});
    return mealID;
  }
  void Eat(int mealID, const QDate &date, int person = 1, bool planned = false) {
    session.Data().Execute(
        "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount, IsPlanned ) "
        "VALUES ( ?, ?, ?, 1, ?, \"1\", ? );",
        {person, ++records, date, mealID, planned});
  }
  TestSession session;
  int records = 0;
};

}  // namespace trimlog
