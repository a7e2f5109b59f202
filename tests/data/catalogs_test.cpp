#include "shipped_file.h"

namespace trimlog {

TEST(ShippedCatalogs, HoldWhatTheFactsHold) {
  ShippedFile file;
  struct Case {
    const char *rows;
    int count;
  };
  for (const Case &c :
       {Case{"meals_list", 8791},
        Case{"meals_list WHERE RecordTypeID=1", 8791},
        Case{"meals_list WHERE USDANum LIKE \"FF*\"", 472},
        Case{"meals_list WHERE GIValue Is Not Null", 134},
        Case{"meals_list WHERE InStr(1, MealDesc, Chr(34))<>0", 0},
        Case{"meals_list INNER JOIN meal_groups ON meals_list.MealGroupID = meal_groups.MealGroupID", 8791},
        Case{"meal_groups", 27},
        Case{"activities_list WHERE RecordTypeID=1", 272},
        Case{"nutrition_targets", 16},
        Case{"nutrition_targets WHERE TargetID<10", 1},
        Case{"nutrients", 36},
        Case{"selected_nutrients", 10},
        Case{"links", 6},
        Case{"uom", 2},
        Case{"meal_types", 9},
        Case{"version_info WHERE Version=2.7", 1},
        Case{"people WHERE PersonID>=0", 0},
        Case{"people", 2},
        Case{"rewards", 0},
        Case{"palm_selected_meals", 0},
        Case{"serava_journal WHERE PersonID=-2", 1},
        Case{"bmi WHERE UomID=1", 25 * 39},
        Case{"bmi WHERE UomID=2", 22 * 44}}) {
    EXPECT_EQ(file.Count(c.rows), c.count) << c.rows;
  }
  EXPECT_TRUE(file.database->IntegrityOk());
}

TEST(ShippedCatalogs, KeepAFoodsValuesAsTheFactsHaveThem) {
  ShippedFile file;
  const QString butter = "meals_list WHERE USDANum=\"01001\"";
  struct Case {
    const char *column, *value;
  };
  for (const Case &c : {Case{"MealID", "1"}, Case{"MealDesc", "Butter, salted"}, Case{"Amount", "1 tbsp (14.2 g)"},
                        Case{"Calories", "102"}, Case{"Fat", "11.52"}, Case{"VitaminA", "354.86"},
                        Case{"TransFat", "0.465"}, Case{"CalFromFatPct", "100"}, Case{"NetCarbs", "0"},
                        Case{"Custom5", "0"}, Case{"IsModified", "0"}, Case{"GIValue", ""}}) {
    EXPECT_EQ(file.Text(c.column, butter), c.value) << c.column;
  }
  EXPECT_EQ(file.Text("GIValue", "meals_list WHERE USDANum=\"01077\""), "39");
}

TEST(ShippedCatalogs, StartWithTheSelectionForOverallHealth) {
  ShippedFile file;
  const QString rows = "SELECT selected_nutrients.* FROM selected_nutrients WHERE PersonID=%1;";
  const Recordset inForce = file.Rows(rows.arg(1));
  const Recordset preset = file.Rows(rows.arg(100));
  for (int i = 1; i <= 10; ++i) {
    for (const char *part : {"NutrientID", "NutDescription", "NutTotal"}) {
      const QString column = part + QString::number(i);
      EXPECT_EQ(inForce.Field(column), preset.Field(column)) << column.toStdString();
    }
    EXPECT_EQ(inForce.Text(QStringLiteral("NutDescription%1").arg(i)).toStdString(),
              file.Text("NutShortDescription", QStringLiteral("nutrients WHERE NutrientID=%1")
                                                   .arg(inForce.Integer(QStringLiteral("NutrientID%1").arg(i)))));
    EXPECT_TRUE(inForce.Field(QStringLiteral("NutTotal%1").arg(i)).toBool());
  }
}

TEST(ShippedCatalogs, BodyMassIndexOfKnownHeightsAndWeights) {
  ShippedFile file;
  struct Case {
    int uom;
    const char *height;
    int weight;
    const char *bmi;
  };
  // Checked against the published tables of the National Heart, Lung, and Blood Institute (1998).
  for (const Case &c : {Case{1, "56", 110, "25"}, Case{1, "64", 145, "25"}, Case{1, "66", 155, "25"},
                        Case{1, "68", 230, "35"}, Case{1, "72", 220, "30"}, Case{1, "80", 300, "33"},
                        Case{2, "1.41", 50, "25"}, Case{2, "1.74", 70, "23"}, Case{2, "2.04", 136, "33"}}) {
    EXPECT_EQ(
        file.Text(
            "bmi",
            QStringLiteral("bmi WHERE UomID=%1 AND Height=%2 AND Weight=%3").arg(c.uom).arg(c.height).arg(c.weight)),
        c.bmi)
        << c.height << ' ' << c.weight;
  }
}

// The chart is drawn in the order in which the rows come: heights in turn, and the same weights for each.
TEST(ShippedCatalogs, BodyMassIndexRowsComeByHeightAndWeight) {
  ShippedFile file;
  for (const auto &[uom, weights] : {std::pair{1, 39}, std::pair{2, 44}}) {
    Recordset rows = file.Rows(QStringLiteral("SELECT bmi.* FROM bmi WHERE bmi.UomID=%1; ").arg(uom));
    std::vector<std::pair<double, int>> order;
    for (; !rows.Eof(); rows.MoveNext()) {
      order.emplace_back(rows.Number("Height"), rows.Integer("Weight"));
    }
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    for (size_t i = weights; i < order.size(); ++i) EXPECT_EQ(order[i].second, order[i - weights].second);
  }
}

TEST(FoodUpdateFile, BringsFoodsRenamingsAndTargetsThatTheDataFileHasToo) {
  ShippedFile update("foodexer1.dat");
  ShippedFile file;
  EXPECT_EQ(update.Count("meals_list"), 472);
  EXPECT_EQ(update.Count("nutrition_targets"), 16);
  EXPECT_FALSE(update.database->ColumnNames("nutrition_targets").contains("NetCarbs"))
      << "an earlier data file gets this column later";
  Recordset foods = update.Rows("SELECT meals_list.* FROM meals_list ORDER BY meals_list.MealID ;");
  for (; !foods.Eof(); foods.MoveNext()) {
    const Recordset same = file.Rows("SELECT meals_list.* FROM meals_list WHERE USDANum=?;", {foods.Field("USDANum")});
    ASSERT_EQ(same.RecordCount(), 1);
    for (const QString &column : foods.FieldNames()) ASSERT_EQ(same.Field(column), foods.Field(column));
  }
  Recordset renamings = update.Rows("SELECT meals_list_updates.* FROM meals_list_updates;");
  EXPECT_GE(renamings.RecordCount(), 3);
  for (; !renamings.Eof(); renamings.MoveNext()) {
    EXPECT_EQ(file.Text("MealDesc", "meals_list WHERE USDANum=" + QuoteText(renamings.Text("USDANum"))),
              renamings.Text("MealDesc").toStdString());
  }
}

}  // namespace trimlog
