#include "catalogs/windows/food_page.h"
#include "catalogs/windows/frmDailyValues.h"
#include "catalogs/windows/frmSelectedNutrients.h"
#include "core/windows/profiles/add_rec_page.h"
#include "food_windows_fixture.h"

namespace trimlog {
namespace {

const QString carbs = QStringLiteral("txtAddRec0(2)");
const QString fat = QStringLiteral("txtAddRec0(3)");
const QString calories = QStringLiteral("txtAddRec0(1)");
const QString netCarbs = QStringLiteral("txtAddRec0(33)");

using FoodPageTest = FoodWindowTest;

TEST_F(FoodPageTest, FieldsFollowTheGrams) {
  FoodPage page(*session, 18, nullptr);
  TypeInto(page, calories, "100");
  TypeInto(page, fat, "2.5");
  EXPECT_EQ(TextOf(page, "txtAddRec0(22)"), "22") << "22.5, halves to even";
  EXPECT_EQ(TextOf(page, "txtAddRec0(23)"), "22");
  TypeInto(page, carbs, "10.5");
  TypeInto(page, "txtAddRec0(5)", "1");
  EXPECT_EQ(TextOf(page, netCarbs), "10") << "9.5, halves to even";
  TypeInto(page, "txtAddRec0(34)", "30");
  EXPECT_EQ(TextOf(page, netCarbs), "0");
}

TEST_F(FoodPageTest, CalculatingAsksBeforeItReplaces) {
  FoodPage page(*session, 18, nullptr);
  TypeInto(page, calories, "200");
  TypeInto(page, fat, "10");
  TypeInto(page, "txtAddRec0(23)", "7");
  for (const auto &[answer, percent] :
       {std::pair(BoxButton::Cancel, "7"), std::pair(BoxButton::No, "7"), std::pair(BoxButton::Yes, "45")}) {
    session.boxes.Expect("Overwrite Existing Values?",
                         "For Protein, Carbs, and Fat, at least one of the calorie or percentage fields already has a "
                         "value.  Would you like to replace those values that you have already entered?",
                         answer);
    Click(page, "cmdCalcCal");
    EXPECT_EQ(TextOf(page, "txtAddRec0(23)"), percent);
  }
}

TEST_F(FoodPageTest, StoresANewFoodAndRefusesWhatIsWrong) {
  const int expectedID = session.ValueOf("Max([MealID])+1 AS N", "meals_list").toInt();
  WhenModal([this](QWidget &window) {
    EXPECT_EQ(window.windowTitle(), "Create a New Food or Meal");
    session.boxes.Expect("Description Required", "Please enter a description for this food or meal.");
    Click(window, "cmdOK");
    TypeInto(window, "txtMealDesc", "5\" pipe of candy");
    TypeInto(window, "txtAmount", "1 piece");
    TypeInto(window, calories, "-5");
    session.boxes.Expect("Invalid Value", "");
    Click(window, "cmdOK");
    EXPECT_TRUE(window.isVisible());
    TypeInto(window, calories, "50.5");
    TypeInto(window, "txtAddRec0(7)", "0.0005");
    Click(window, "cmdOK");
  });
  int stored = 0;
  EXPECT_TRUE(AddRec(
      nullptr, [this](QWidget *parent) { return new FoodPage(*session, 18, parent); },
      [&stored](AddRecPage &page) { stored = static_cast<FoodPage &>(page).MealID(); }));
  EXPECT_EQ(stored, expectedID);
  const QString where = QStringLiteral("MealID=%1").arg(stored);
  EXPECT_EQ(session.ValueOf("MealDesc", "meals_list", where), "5'' pipe of candy");
  EXPECT_EQ(session.ValueOf("Calories", "meals_list", where), "51");
  EXPECT_EQ(session.ValueOf("Iron", "meals_list", where), "0.001");
  EXPECT_EQ(session.ValueOf("MealGroupID", "meals_list", where), "18");
  EXPECT_EQ(session.ValueOf("RecordTypeID", "meals_list", where), "2");
}

TEST_F(FoodPageTest, ShowsAStoredFoodAndCancelChangesNothing) {
  FoodRecord food = ReadFood(*session, 1);
  food.nutrients.Set(33, 99);  // somebody typed net carbs of their own
  FoodPage page(*session, food, nullptr);
  EXPECT_EQ(page.Title(), "View/Edit All Nutrients");
  EXPECT_EQ(page.Header(), "Edit the nutrients for the selected food and click <OK>.");
  EXPECT_EQ(TextOf(page, fat), "11.52");
  Q_EMIT Find<QLineEdit>(page, carbs).editingFinished();
  EXPECT_EQ(TextOf(page, netCarbs), "99") << "leaving an unchanged field follows nothing";
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", "MealID=1"), "0");
  TypeInto(page, fat, "12");
  EXPECT_TRUE(page.Store());
  EXPECT_EQ(session.ValueOf("Fat", "meals_list", "MealID=1"), "12");
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", "MealID=1"), "-1");
}

TEST_F(FoodPageTest, PercentsOfDailyValuesBecomeAmounts) {
  FoodPage page(*session, 18, nullptr);
  TypeInto(page, calories, "100");
  TypeInto(page, "txtAddRec0(7)", "1");
  WhenModal([](QWidget &window) {
    EXPECT_EQ(window.windowTitle(), "Convert from Percent of Daily Value");
    TypeInto(window, "txtAddRec0(0)", "100");
    TypeInto(window, "txtAddRec0(5)", "50");
    Click(window, "cmdOK");
  });
  Click(page, "cmdCalcDV");
  EXPECT_EQ(TextOf(page, fat), "65.00");
  EXPECT_EQ(TextOf(page, carbs), "150.00");
  EXPECT_EQ(TextOf(page, netCarbs), "150") << "the fields that follow follow";
  EXPECT_EQ(TextOf(page, "txtAddRec0(7)"), "1") << "an empty percent changes nothing";
}

class GermanFoodPageTest : public FoodWindowTest {
 protected:
  GermanFoodPageTest() : FoodWindowTest(QLocale(QLocale::German, QLocale::Germany)) {}
};

TEST_F(GermanFoodPageTest, TypesAndShowsCommas) {
  FoodPage page(*session, ReadFood(*session, 1), nullptr);
  EXPECT_EQ(TextOf(page, fat), "11,52");
  TypeInto(page, fat, "1,5");
  EXPECT_TRUE(page.Store());
  EXPECT_EQ(session.ValueOf("Fat", "meals_list", "MealID=1"), "1.5");
}

using SelectedNutrientsTest = FoodWindowTest;

TEST_F(SelectedNutrientsTest, ChoosesNamesAndTotals) {
  frmSelectedNutrients window(*session, navigator, nullptr);
  QComboBox &first = Find<QComboBox>(window, "cboNutrient(1)");
  EXPECT_EQ(first.currentData().toInt(), session->nutrients.SelectedNutrients[0].NutrientID);
  EXPECT_EQ(first.count(), 36);
  first.setCurrentIndex(first.findData(28));
  Q_EMIT first.activated(first.currentIndex());
  EXPECT_EQ(TextOf(window, "txtNutrient(1)"), "Cust 1");
  TypeInto(window, "txtNutrient(1)", "Caffeine");
  QComboBox &last = Find<QComboBox>(window, "cboNutrient(10)");
  last.setCurrentIndex(last.findData(0));
  Q_EMIT last.activated(last.currentIndex());
  Find<QCheckBox>(window, "chkNutTotal(1)").setChecked(false);
  Click(window, "cmdOK");
  EXPECT_EQ(session->nutrients.SelectedNutrients[0].description, "Caffeine");
  EXPECT_FALSE(session->nutrients.SelectedNutrients[0].NutTotal);
  EXPECT_EQ(session->nutrients.SelectedNutrients[9].NutrientID, 0);
  EXPECT_EQ(session.ValueOf("NutDescription1", "selected_nutrients", "PersonID=1"), "Caffeine");
}

TEST_F(SelectedNutrientsTest, AHandheldWithFoodsGetsANotice) {
  session.Data().Execute("INSERT INTO palm_selected_meals ( MealID ) SELECT 1 AS Expr1;");
  frmSelectedNutrients window(*session, navigator, nullptr);
  session.boxes.Expect(
      "Important!",
      "IMPORTANT: If you changed anything regarding the nutrient selections, you will need to re-install "
      "the food databases on your handheld.\n\nTo do this, choose \"Configure\" from the \"Mobile\" menu, "
      "and then click the \"Re-install Foods\" button.");
  Click(window, "cmdOK");
}

}  // namespace
}  // namespace trimlog
