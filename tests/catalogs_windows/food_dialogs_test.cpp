#include "catalogs/windows/food_page.h"
#include "catalogs/windows/frmDailyValues.h"
#include "catalogs/windows/frmSelectedNutrients.h"
#include "catalogs/windows/nutrient_fields.h"
#include "core/windows/profiles/add_rec_page.h"
#include "food_windows_fixture.h"

namespace trimlog {
namespace {

const QString carbs = "txtAddRec0(2)";
const QString fat = "txtAddRec0(3)";
const QString calories = "txtAddRec0(1)";
const QString netCarbs = "txtAddRec0(33)";

using FoodPageTest = FoodWindowTest;

TEST_F(FoodPageTest, FieldsFollowTheGrams) {
  FoodPage page(*session, 18, nullptr);
  Show(page);
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
  Show(page);
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
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
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
    TypeInto(window, "txtGIValue", "-1");
    session.boxes.Expect("Invalid Value", "Please type a number from 0 to 1000000.");
    Click(window, "cmdOK");
    TypeInto(window, "txtGIValue", "55");
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
  EXPECT_EQ(session.ValueOf("Amount", "meals_list", where), "1 piece");
  EXPECT_EQ(session.ValueOf("GIValue", "meals_list", where), "55");
  EXPECT_EQ(session.ValueOf("MealGroupID", "meals_list", where), "18");
  EXPECT_EQ(session.ValueOf("RecordTypeID", "meals_list", where), "2");
}

TEST_F(FoodPageTest, ShowsAStoredFoodAndCancelChangesNothing) {
  FoodRecord food = ReadFood(*session, 1);
  food.nutrients.Set(33, 99);  // somebody typed net carbs of their own
  FoodPage page(*session, food, nullptr);
  Show(page);
  EXPECT_EQ(page.Title(), "View/Edit All Nutrients");
  EXPECT_EQ(page.Header(), "Edit the nutrients for the selected food and click <OK>.");
  EXPECT_EQ(TextOf(page, fat), "11.52");
  Find<QLineEdit>(page, carbs).setFocus();
  QTest::keyClick(&Find<QLineEdit>(page, carbs), Qt::Key_Tab);
  EXPECT_EQ(TextOf(page, netCarbs), "99") << "leaving an unchanged field follows nothing";
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", "MealID=1"), "0");
  TypeInto(page, fat, "12");
  EXPECT_TRUE(page.Store());
  EXPECT_EQ(session.ValueOf("Fat", "meals_list", "MealID=1"), "12");
  EXPECT_EQ(session.ValueOf("IsModified", "meals_list", "MealID=1"), "-1");
}

TEST_F(FoodPageTest, PercentsOfDailyValuesBecomeAmounts) {
  FoodPage page(*session, 18, nullptr);
  Show(page);
  TypeInto(page, calories, "100");
  TypeInto(page, "txtAddRec0(7)", "1");
  for (const char *field : {"txtAddRec0(22)", "txtAddRec0(23)", "txtAddRec0(26)", "txtAddRec0(27)", "txtAddRec0(33)"}) {
    TypeInto(page, field, "8");
  }
  WhenModal([](QWidget &window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(window.windowTitle(), "Convert from Percent of Daily Value");
    TypeInto(window, "txtAddRec0(0)", "100");
    TypeInto(window, "txtAddRec0(5)", "50");
    Click(window, "cmdOK");
  });
  Click(page, "cmdCalcDV");
  EXPECT_EQ(TextOf(page, fat), "65.00");
  EXPECT_EQ(TextOf(page, carbs), "150.00");
  EXPECT_EQ(TextOf(page, "txtAddRec0(7)"), "1") << "an empty percent changes nothing";
  for (const char *field : {"txtAddRec0(22)", "txtAddRec0(23)", "txtAddRec0(26)", "txtAddRec0(27)"}) {
    EXPECT_EQ(TextOf(page, field), "8") << field << " was not given";
  }
  Find<QLineEdit>(page, fat).setFocus();
  QTest::keyClick(&Find<QLineEdit>(page, fat), Qt::Key_Tab);
  EXPECT_EQ(TextOf(page, "txtAddRec0(22)"), "8") << "leaving what the converter filled follows nothing";

  for (const auto &[typed, complaint] :
       {std::pair("abc", "Please type a number."), std::pair("-50", "Please type a number from 0 to"),
        std::pair("10001", "Please type a number from 0 to")}) {
    WhenModal([this, typed = typed, complaint = complaint](QWidget &window) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
      TypeInto(window, "txtAddRec0(15)", typed);
      session.boxes.Expect("Invalid Value", complaint);
      Click(window, "cmdOK");
      EXPECT_TRUE(window.isVisible());
      EXPECT_TRUE(Find<QLineEdit>(window, "txtAddRec0(15)").hasFocus());
      Click(window, "cmdCancel");
    });
    Click(page, "cmdCalcDV");
    EXPECT_EQ(TextOf(page, "txtAddRec0(10)"), "");
  }
}

TEST_F(FoodPageTest, EachFailedCommandSaysSoAndKeepsWhatWasTyped) {
  FoodPage page(*session, 18, nullptr);
  Show(page);
  TypeInto(page, "txtMealDesc", "Soup");
  TypeInto(page, calories, "100");
  TypeInto(page, fat, "1000000");
  session.boxes.Expect("Error Calculating Calories", "The calories could not be calculated from these amounts.");
  Click(page, "cmdCalcCal");
  EXPECT_EQ(TextOf(page, "txtAddRec0(22)"), "");
  TypeInto(page, fat, "10");
  WhenModal([this](QWidget &window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    TypeInto(window, "txtAddRec0(0)", "1000000");
    session.boxes.Expect("Invalid Value", "from 0 to 10000");
    Click(window, "cmdOK");
    TypeInto(window, "txtAddRec0(0)", "100");
    Click(window, "cmdOK");
  });
  Click(page, "cmdCalcDV");
  session.Data().Execute("DROP TABLE meals_list;");
  session.boxes.Expect("Error Saving Food", "An error occurred while saving this food.  ");
  EXPECT_FALSE(page.Store());
  EXPECT_EQ(TextOf(page, "txtMealDesc"), "Soup");
  FoodRecord changed;
  changed.MealID = 1;
  changed.MealDesc = "Changed";
  FoodPage stored(*session, changed, nullptr);
  session.boxes.Expect("Error Saving Food", "An error occurred while saving this food.  ");
  EXPECT_FALSE(stored.Store());
  for (const char *procedure : {"frmAddRec, cmdCalcCal_Click", "basMain, AddRec"}) {
    EXPECT_TRUE(session.Logged(procedure)) << procedure;
  }
}

class GermanFoodPageTest : public FoodWindowTest {
 protected:
  GermanFoodPageTest() : FoodWindowTest(QLocale(QLocale::German, QLocale::Germany)) {}
};

TEST_F(GermanFoodPageTest, TypesAndShowsCommas) {
  FoodPage page(*session, ReadFood(*session, 1), nullptr);
  Show(page);
  EXPECT_EQ(TextOf(page, fat), "11,52");
  TypeInto(page, fat, "1,5");
  EXPECT_TRUE(page.Store());
  EXPECT_EQ(session.ValueOf("Fat", "meals_list", "MealID=1"), "1.5");
}

TEST_F(FoodPageTest, EveryFieldShowsAndStoresItsOwnNutrient) {
  FoodRecord food = ReadFood(*session, 1);
  for (int id = 1; id <= nutrientCount; ++id) food.nutrients.Set(id, 100 + id);
  FoodPage page(*session, food, nullptr);
  Show(page);
  for (int id = 1; id <= nutrientCount; ++id) {
    QLineEdit &field = Find<QLineEdit>(page, QStringLiteral("txtAddRec0(%1)").arg(id));
    EXPECT_EQ(field.property("DataField"), Definition(session->nutrients, id).fieldName);
    EXPECT_EQ(field.text().toDouble(), 100 + id);
    field.setText(QString::number(300 - id));
  }
  EXPECT_TRUE(page.Store());
  for (int id = 1; id <= nutrientCount; ++id) {
    EXPECT_EQ(FoodValue(Definition(session->nutrients, id).fieldName, 1), QString::number(300 - id)) << id;
  }
}

TEST_F(FoodPageTest, OkOnAnUnchangedFoodWritesNothing) {
  session.Data().Execute("UPDATE meals_list SET Iron = Null WHERE (MealID=1);");
  int announced = 0;
  QObject::connect(&session->changes, &DataChanges::Changed, [&] { ++announced; });
  FoodPage page(*session, ReadFood(*session, 1), nullptr);
  EXPECT_TRUE(page.Store());
  EXPECT_EQ(announced, 0);
  EXPECT_EQ(FoodValue("IsModified", 1), "0");
  EXPECT_EQ(FoodValue("Iron", 1), "");
}

TEST_F(FoodPageTest, FitsAScreenOfHalfTheSize) {
  NutrientFields wide(*session, FoodNutrientFields(), 1180, nullptr);
  NutrientFields narrow(*session, FoodNutrientFields(), 560, nullptr);
  EXPECT_GT(wide.sizeHint().width(), narrow.sizeHint().width());
  EXPECT_LE(narrow.sizeHint().width(), 560);
  EXPECT_LE(wide.sizeHint().width(), 1180);
}

using SelectedNutrientsTest = FoodWindowTest;

TEST_F(SelectedNutrientsTest, ChoosesNamesAndTotals) {
  NutrientSelection stored = ReadNutrientSelection(*session);
  for (std::size_t i = 0; i < shownNutrients; ++i) stored[i].NutTotal = i % 3 == 0;
  SaveNutrientSelection(*session, stored);
  frmSelectedNutrients window(*session, navigator, nullptr);
  Show(window);
  for (int position = 1; position <= shownNutrients; ++position) {
    const auto name = [position](const char *control) { return QStringLiteral("%1(%2)").arg(control).arg(position); };
    const SelectedNutrient &shown = stored[static_cast<std::size_t>(position - 1)];
    EXPECT_EQ(Find<QComboBox>(window, name("cboNutrient")).currentData(), shown.NutrientID) << position;
    EXPECT_EQ(TextOf(window, name("txtNutrient")), shown.description) << position;
    EXPECT_EQ(Find<QCheckBox>(window, name("chkNutTotal")).isChecked(), shown.NutTotal) << position;
  }
  EXPECT_EQ(Find<QComboBox>(window, "cboNutrient(1)").count(), 36);
  Choose(window, "cboNutrient(1)", 28);
  EXPECT_EQ(TextOf(window, "txtNutrient(1)"), "Cust 1");
  TypeInto(window, "txtNutrient(1)", "Caffeine");
  Choose(window, "cboNutrient(10)", 0);
  QTest::mouseClick(&Find<QCheckBox>(window, "chkNutTotal(1)"), Qt::LeftButton, {}, {6, 8});
  Click(window, "cmdHelp");
  EXPECT_EQ(opened, QStringList{"nutrients"});
  Click(window, "cmdOK");
  EXPECT_FALSE(window.isVisible());
  stored[0] = {28, "Caffeine", false, {}};
  stored[9].NutrientID = 0;
  const NutrientSelection saved = ReadNutrientSelection(*session);
  for (std::size_t i = 0; i < shownNutrients; ++i) {
    EXPECT_EQ(saved[i].NutrientID, stored[i].NutrientID) << i;
    EXPECT_EQ(saved[i].NutTotal, stored[i].NutTotal) << i;
  }
  EXPECT_EQ(saved[0].description, "Caffeine");
  EXPECT_EQ(saved[9].description, "None");
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

TEST_F(SelectedNutrientsTest, WhatCannotBeReadOrSavedIsTold) {
  WhenModal([this](QWidget &window) {
    EXPECT_EQ(window.objectName(), "frmSelectedNutrients");
    session.Data().Execute("DELETE selected_nutrients.* FROM selected_nutrients WHERE (PersonID=1);");
    session.boxes.Expect("Error Saving Nutrients", "An error occurred while saving your nutrient selections.");
    Click(window, "cmdOK");
    EXPECT_TRUE(window.isVisible()) << "what was chosen stays before the eyes";
    Click(window, "cmdCancel");
  });
  OpenNutrientSelection(*session, navigator, nullptr);
  session.boxes.Expect("Error Loading Setup Info", "An error occurred while loading your setup information.");
  OpenNutrientSelection(*session, navigator, nullptr);  // and no window that would write zeros
}

}  // namespace
}  // namespace trimlog
