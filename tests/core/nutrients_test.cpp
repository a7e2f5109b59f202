#include "core/data/nutrients.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/test_session.h"

namespace trimlog {
namespace {

TEST(NutrientVocabulary, EveryNutrientHasItsColumnAndPattern) {
  TestSession session;
  Nutrients nutrients;
  FillNutrientDefinitions(nutrients, session.Data());
  const std::pair<const char *, const char *> expected[nutrientCount] = {
      {"Calories", "0"},          {"Carbs", "0.00"},          {"Fat", "0.00"},         {"Protein", "0.00"},
      {"Fiber", "0.000"},         {"Calcium", "0.00"},        {"Iron", "0.000"},       {"Sodium", "0.00"},
      {"Potassium", "0.00"},      {"Zinc", "0.000"},          {"VitaminA", "0.00"},    {"VitaminE", "0.000"},
      {"VitaminB6", "0.000"},     {"VitaminB12", "0.000"},    {"VitaminC", "0.00"},    {"SatFat", "0.000"},
      {"MonoFat", "0.000"},       {"PolyFat", "0.000"},       {"Cholesterol", "0.00"}, {"Sugar", "0.000"},
      {"Alcohol", "0.000"},       {"CalFromFat", "0"},        {"CalFromFatPct", "0"},  {"CalFromProtein", "0"},
      {"CalFromProteinPct", "0"}, {"CalFromCarb", "0"},       {"CalFromCarbPct", "0"}, {"Custom1", "0.00"},
      {"Custom2", "0.00"},        {"Custom3", "0.00"},        {"Custom4", "0.00"},     {"Custom5", "0.00"},
      {"NetCarbs", "0"},          {"SugarAlcohols", "0.000"}, {"TransFat", "0.000"}};
  const QStringList columns = session.Data().ColumnNames("meals");
  for (int i = 0; i < nutrientCount; ++i) {
    const QString &field = nutrients.NutrientDefs[i].fieldName;
    EXPECT_EQ(field.toStdString(), expected[i].first) << "NutrientID " << i + 1;
    EXPECT_EQ(GetNutrientFormat(field).toStdString(), expected[i].second) << expected[i].first;
    EXPECT_TRUE(columns.contains(field)) << expected[i].first;
    EXPECT_FALSE(nutrients.NutrientDefs[i].description.isEmpty()) << expected[i].first;
  }
  for (int id = 0; id <= nutrientCount + 1; ++id) {
    EXPECT_EQ(IsPercentOfCalories(id), id == 23 || id == 25 || id == 27) << id;
    EXPECT_EQ(IsCustomNutrient(id), id >= 28 && id <= 32) << id;
  }
  EXPECT_EQ(nutrients.NutrientDefs[34].descriptionPlusUnit, "Trans Fat (g)");
  EXPECT_EQ(GetNutrientFormat("WaterConsumed"), "0.00");
}

TEST(NutrientVocabulary, AnIdBeyondTheVocabularyLeavesTheDefinitionsAsTheyWere) {
  TestSession session;
  Nutrients nutrients;
  FillNutrientDefinitions(nutrients, session.Data());
  session.Data().Execute("INSERT INTO nutrients ( NutrientID, NutFieldName ) VALUES ( 36, \"Caffeine\" );");
  try {
    FillNutrientDefinitions(nutrients, session.Data());
    FAIL() << "36 was taken";
  } catch (const Error &error) {
    EXPECT_EQ(error.Number(), error_number::outOfBounds);
  }
  EXPECT_EQ(nutrients.NutrientDefs[0].fieldName, "Calories");
}

TEST(NutrientVocabulary, TheSelectionInForceIsTheOneOfTheFile) {
  TestSession session;
  session->profile.CurrentPersonID = "-1";  // the selection is not per profile
  session.Data().Execute(
      "UPDATE selected_nutrients SET NutrientID1=35, NutDescription1=\"My Trans Fat\", NutTotal1=True, "
      "NutrientID2=0, NutDescription2=\"\", NutTotal2=False, NutrientID3=28, NutDescription3=\"Caffeine\", "
      "NutTotal3=False, NutrientID4=77 WHERE PersonID=1;");
  Nutrients nutrients;
  FillSelectedNutrientsArray(nutrients, session.Data());
  const auto &selected = nutrients.SelectedNutrients;
  EXPECT_EQ(selected[0].NutrientID, 35);
  EXPECT_EQ(selected[0].description, "My Trans Fat");
  EXPECT_TRUE(selected[0].NutTotal);
  EXPECT_EQ(selected[0].descriptionPlusUnit, "Trans Fat (g)");
  EXPECT_EQ(selected[1].NutrientID, 0);
  EXPECT_EQ(selected[1].descriptionPlusUnit, "");
  EXPECT_EQ(selected[2].description, "Caffeine");
  EXPECT_FALSE(selected[2].NutTotal);
  EXPECT_EQ(selected[3].descriptionPlusUnit, "") << "an id that the vocabulary does not know";
}

TEST(NutrientTargetValues, FollowTheTargetSet) {
  TestSession session;
  Nutrients nutrients;
  FillNutrientDefinitions(nutrients, session.Data());
  session.Data().Execute(
      "UPDATE nutrition_targets SET Calories=1234, Fat=Null, Iron=0, TransFat=1.5 "
      "WHERE TargetID=30;");
  FillNutrientTargets(nutrients, session.Data(), 30);
  EXPECT_EQ(nutrients.NutrientTargets[0], 1234);
  EXPECT_EQ(nutrients.NutrientTargets[2], -1) << "a blank is no target";
  EXPECT_EQ(nutrients.NutrientTargets[6], 0) << "nought is one";
  EXPECT_EQ(nutrients.NutrientTargets[34], 1.5);

  FillNutrientTargets(nutrients, session.Data(), 0);
  for (const double target : nutrients.NutrientTargets) EXPECT_EQ(target, -1);

  const QString first = session.ValueOf("Calories", "nutrition_targets");
  FillNutrientTargets(nutrients, session.Data(), 250);  // a set that is gone: the first one
  EXPECT_EQ(nutrients.NutrientTargets[0], first.toDouble());
}

}  // namespace
}  // namespace trimlog
