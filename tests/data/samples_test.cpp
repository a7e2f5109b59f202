#include <cmath>
#include <map>
#include <set>

#include "core/data/schema.h"
#include "platform/text/rounding.h"
#include "shipped_file.h"

namespace trimlog {

namespace {

/// Weights of a person in the order of the days.
std::vector<std::pair<QDate, double>> WeightsOf(ShippedFile &file, int person) {
  std::vector<std::pair<QDate, double>> weights;
  Recordset rows = file.Rows(
      QStringLiteral("SELECT ThisDate, ThisWeight FROM weight_loss WHERE PersonID=%1 ORDER BY ThisDate;").arg(person));
  for (; !rows.Eof(); rows.MoveNext()) {
    weights.emplace_back(rows.Field("ThisDate").toDate(), rows.Number("ThisWeight"));
  }
  return weights;
}

int Decimals(const QString &pattern) {
  const qsizetype point = pattern.indexOf(QLatin1Char('.'));
  return point < 0 ? 0 : static_cast<int>(pattern.size() - point - 1);
}

}  // namespace

TEST(SampleProfiles, StandLiveAsTheyStandPristine) {
  ShippedFile file;
  for (const char *name : {"weight_loss", "notes", "measurements", "meals", "activities"}) {
    const QString table = name;
    const QString order = FindSchemaTable(table).key.join(", ");
    const QString all = "SELECT * FROM %1 ORDER BY %2";
    Recordset live = file.Rows(all.arg(table, order));
    Recordset pristine = file.Rows(all.arg(table + "_sample", order));
    ASSERT_GT(live.RecordCount(), 0) << name;
    ASSERT_EQ(live.RecordCount(), pristine.RecordCount()) << name;
    EXPECT_EQ(live.FieldNames(), pristine.FieldNames()) << name;
    for (; !live.Eof(); live.MoveNext(), pristine.MoveNext()) {
      for (int i = 0; i < live.FieldNames().size(); ++i) ASSERT_EQ(live.Field(i), pristine.Field(i)) << name;
    }
  }
}

TEST(SampleProfiles, EachDaysLossIsTheWeightBeforeItMinusItsOwn) {
  ShippedFile file;
  Recordset rows = file.Rows("SELECT weight_loss.* FROM weight_loss ORDER BY PersonID, ThisDate;");
  std::map<int, double> last;
  for (; !rows.Eof(); rows.MoveNext()) {
    const int person = rows.Integer("PersonID");
    const double weight = rows.Number("ThisWeight");
    const double before = last.contains(person) ? last[person] : weight;
    EXPECT_NEAR(rows.Number("ThisLoss"), before - weight, 1e-9) << rows.Text("ThisDate").toStdString();
    last[person] = weight;
  }
}

TEST(SampleProfiles, EveryEntryHoldsItsFoodsNutrientsTimesTheServings) {
  ShippedFile file;
  std::vector<std::pair<QString, int>> columns;
  Recordset nutrients = file.Rows("SELECT nutrients.* FROM nutrients WHERE NutrientID<>0;");
  for (; !nutrients.Eof(); nutrients.MoveNext()) {
    columns.emplace_back(nutrients.Text("NutFieldName"), Decimals(nutrients.Text("NutFormat")));
  }
  ASSERT_EQ(columns.size(), 35u);
  Recordset entries = file.Rows("SELECT meals_sample.* FROM meals_sample;");
  for (; !entries.Eof(); entries.MoveNext()) {
    const Recordset food = file.Rows("SELECT meals_list.* FROM meals_list WHERE MealID=?;", {entries.Field("MealID")});
    const double servings = entries.Text("Amount").toDouble();
    ASSERT_GT(servings, 0);
    for (const auto &[column, decimals] : columns) {
      const double factor = column.endsWith("Pct") ? 1 : servings;
      ASSERT_DOUBLE_EQ(entries.Number(column), RoundHalfAway(food.Number(column) * factor, decimals))
          << column.toStdString() << " of " << food.Text("MealDesc").toStdString();
    }
  }
}

TEST(SampleProfiles, TheFirstIsOneBelievableMonthWithAJournal) {
  ShippedFile file;
  const auto weights = WeightsOf(file, -2);
  ASSERT_GT(weights.size(), 15u);
  EXPECT_LE(weights.front().first.daysTo(weights.back().first), 31);
  EXPECT_NEAR(weights.front().second - weights.back().second, 8, 1);
  int gains = 0;
  for (size_t i = 1; i < weights.size(); ++i) gains += weights[i].second > weights[i - 1].second;
  EXPECT_GE(gains, 3);

  std::map<QDate, std::set<int>> mealsOfDay;
  std::map<QDate, double> caloriesOfDay;
  Recordset meals = file.Rows("SELECT meals.* FROM meals WHERE PersonID=-2;");
  for (; !meals.Eof(); meals.MoveNext()) {
    const QDate day = meals.Field("ThisDate").toDate();
    mealsOfDay[day].insert(meals.Integer("MealTypeID"));
    caloriesOfDay[day] += meals.Number("Calories");
  }
  EXPECT_GE(mealsOfDay.size(), 28u);
  for (const auto &[day, kinds] : mealsOfDay) {
    EXPECT_TRUE(kinds.size() >= 2 && kinds.size() <= 6) << day.toString(Qt::ISODate).toStdString();
  }
  for (const auto &[day, calories] : caloriesOfDay) {
    EXPECT_TRUE(calories > 1200 && calories < 1900) << day.toString(Qt::ISODate).toStdString() << ' ' << calories;
  }
  const int activeDays = file.Rows("SELECT DISTINCT ThisDate FROM activities WHERE PersonID=-2;").RecordCount();
  EXPECT_NEAR(activeDays, 15, 2);
  EXPECT_EQ(file.Count("measurements WHERE PersonID=-2"), 5);
  EXPECT_GE(file.Count("notes WHERE PersonID=-2"), 8);
  EXPECT_EQ(file.Count("other_daily_data WHERE PersonID=-2"), 31);
}

TEST(SampleProfiles, ExerciseCaloriesFollowTheDaysWeightAndTheMinutes) {
  ShippedFile file;
  // Brisk walking burns 154 for 150 lb in the listed 30 minutes; on the 1st she weighs 158.2 lb.
  EXPECT_EQ(file.Text("Calories", "activities WHERE PersonID=-2 AND ThisDate=#10/1/2026#"), "162");
  // No weight on the 4th: moderate walking burns the listed 125, twice in an hour.
  EXPECT_EQ(file.Text("Calories", "activities WHERE PersonID=-2 AND ThisDate=#10/4/2026#"), "250");
}

TEST(SampleProfiles, TheSecondIsSevenMonthsOfWeightsOnly) {
  ShippedFile file;
  const auto weights = WeightsOf(file, -1);
  EXPECT_NEAR(static_cast<double>(weights.front().first.daysTo(weights.back().first)), 7 * 30.4, 10);
  EXPECT_NEAR(weights.front().second - weights.back().second, 40, 2);
  qint64 longestPause = 0;
  for (size_t i = 1; i < weights.size(); ++i) {
    longestPause = std::max(longestPause, weights[i - 1].first.daysTo(weights[i].first));
    EXPECT_LT(std::abs(weights[i].second - weights[i - 1].second), 5);
  }
  EXPECT_GE(longestPause, 10) << "holidays without a scale";
  for (const char *table : {"notes", "measurements", "meals", "activities", "other_daily_data"}) {
    EXPECT_EQ(file.Count(QString::fromLatin1(table) + " WHERE PersonID=-1"), 0) << table;
  }
}

}  // namespace trimlog
