// Picking foods for a day: by keys alone, by clicks, and with what is wrong.
#include "catalogs/windows/frmAddMeal.h"

#include <QTabWidget>

#include "food_windows_fixture.h"

namespace trimlog {
namespace {

class AddMealTest : public FoodWindowTest {
 protected:
  void Open(const JournalKind &kind = JournalKind::Diary()) {
    opening.emplace(EntryOpening{
        .kind = kind, .date = {2026, 3, 1}, .MealTypeID = 3, .stored = [this](int recordID, const QDate &) {
          lastRecord = recordID;
        }});
    window = std::make_unique<frmAddMeal>(*session, navigator, PickingForDay(*session, *opening), nullptr);
    Show(*window);
  }
  void OpenForRecipe(std::function<bool(const MealEntry &)> add) {
    FoodPicking picking;
    picking.caption = "Add a Food to this Recipe";
    picking.header = "Choose its foods.";
    picking.forDay = false;
    picking.recipesOffered = false;
    picking.add = std::move(add);
    window = std::make_unique<frmAddMeal>(*session, navigator, picking, nullptr);
    Show(*window);
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void Type(const char *text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  BoundGrid &List() { return Find<BoundGrid>(*window, "grdMealsList"); }
  BoundGrid &FoundFoods() { return Find<BoundGrid>(*window, "grdMealsSearch"); }
  QString Added() { return Find<QLabel>(*window, "lblAdded").text(); }
  void Click(const QString &name) { FoodWindowTest::Click(*window, name); }
  /// The stored entries, in order: "food servings meal date".
  QStringList Entries() {
    QStringList entries;
    for (int id = 1; session.ValueOf("MealID", "meals", QStringLiteral("PersonID=1 AND RecordID=%1").arg(id)) != "";
         ++id) {
      const auto value = [&](const char *field) {
        return session.ValueOf(field, "meals", QStringLiteral("PersonID=1 AND RecordID=%1").arg(id));
      };
      entries.append(FoodValue("MealDesc", value("MealID").toInt()) + ' ' + value("Amount") + ' ' +
                     value("MealTypeID") + ' ' + value("ThisDate"));
    }
    return entries;
  }
  int Eaten(const QString &name) {
    const int food = AddOwn(name);
    session.Data().Execute(
        "INSERT INTO meals ( PersonID, RecordID, ThisDate, MealTypeID, MealID, Amount ) "
        "VALUES ( 1, 1, #2/27/2026#, 1, ?, \"1\" );",
        {food});
    return food;
  }

  std::optional<EntryOpening> opening;
  std::unique_ptr<frmAddMeal> window;
  int lastRecord = 0;
};

TEST_F(AddMealTest, ARecentFoodTakesFewKeys) {
  Eaten("Qwx soup");
  Open();
  // Alt+L and R choose the list and Enter goes to its foods; next time the list is there at once.
  Key(Qt::Key_L, Qt::AltModifier);
  Type("r");
  Key(Qt::Key_Return);
  ASSERT_EQ(QApplication::focusWidget(), &List());
  EXPECT_EQ(List().Model().RecordCount(), 1);
  Key(Qt::Key_Return);
  EXPECT_EQ(Entries().last(), "Qwx soup 1 3 2026-03-01");
  EXPECT_EQ(lastRecord, 2);
  EXPECT_EQ(Added(), "Added to Lunch of 3/1/2026: 1 x Qwx soup");
  EXPECT_TRUE(window->isVisible()) << "stays for the next food";
  Key(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Entries().size(), 2);
  EXPECT_EQ(session->settings.LastRecordTypeMeals, -3);

  AddOwn("Qwy");
  Open();
  EXPECT_EQ(List().Model().RecordCount(), 1);
  Type("qwx");
  Key(Qt::Key_V, Qt::AltModifier);
  Type("2.5");
  Key(Qt::Key_Return);
  EXPECT_EQ(Entries().last(), "Qwx soup 2.5 3 2026-03-01");
  EXPECT_EQ(QApplication::focusWidget(), &List()) << "on to the next food";
  Key(Qt::Key_O, Qt::AltModifier);
  WaitForPressedButtons();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(Entries().size(), 4);
}

TEST_F(AddMealTest, LettersFindFoodsWhereTheOwnStandFirst) {
  AddOwn("Zz own");
  Open();
  EXPECT_EQ(List().CurrentField("MealDesc"), "Zz own");
  Type("butter");
  EXPECT_TRUE(List().CurrentField("MealDesc").toString().startsWith("butter", Qt::CaseInsensitive));
  Click("cmdAplha");
  QApplication::processEvents();
  const QWidget &letters = *Find<QWidget>(*window, "pshAplha(25)").parentWidget();
  EXPECT_FALSE(letters.geometry().intersects(List().geometry())) << "the letters have a row of their own";
  QTest::mouseClick(&Find<QAbstractButton>(*window, "pshAplha(25)"), Qt::LeftButton);
  EXPECT_EQ(List().CurrentField("RecordTypeID"), food_kind::preLoaded);
}

TEST_F(AddMealTest, TheNextOneIsSortedLikeTheLastAndTheButtonCloses) {
  Open();
  const QString calories = Find<QComboBox>(*window, "cboSort").itemData(2).toString();
  Choose(*window, "cboSort", calories);
  const QVariant first = List().CurrentField("MealID");
  Click("cmdSelectClose");
  EXPECT_FALSE(window->isVisible());
  Open();
  EXPECT_EQ(Find<QComboBox>(*window, "cboSort").currentData(), calories);
  EXPECT_EQ(List().CurrentField("MealID"), first);
}

TEST_F(AddMealTest, FoodsFoundByWordsAreAnEnterAway) {
  const int own = AddOwn("Mum's \"best\" pie");
  Open(JournalKind::Planner());
  EXPECT_EQ(window->windowTitle(), "Add a Food or Meal to Your Planner");
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtFindFirst");
  Type("pie  mum's");
  Key(Qt::Key_Return);
  EXPECT_EQ(Find<QLabel>(*window, "lblFoodsFound").text(), "Food Description  (1 foods found)");
  ASSERT_EQ(QApplication::focusWidget(), &FoundFoods());
  Find<QLineEdit>(*window, "txtServ(0)").setText("9");
  Key(Qt::Key_Return);
  EXPECT_EQ(Entries().last(), "Mum's ''best'' pie 1 3 2026-03-01") << "each tab has its own servings";
  EXPECT_EQ(session.ValueOf("IsPlanned", "meals", QStringLiteral("MealID=%1").arg(own)), "-1");
}

TEST_F(AddMealTest, TheButtonGoesWithTheRowAndADoubleClickAdds) {
  Open();
  QPushButton &add = Find<QPushButton>(*window, "cmdSelectFood");
  const auto middle = [](QWidget &widget, const QRect &part) { return widget.mapToGlobal(part.center()).y(); };
  const auto rowMiddle = [&] { return middle(*List().viewport(), List().visualRect(List().currentIndex())); };
  EXPECT_NEAR(middle(add, add.rect()), rowMiddle(), 2);
  for (int i = 0; i < 4; ++i) Key(Qt::Key_Down);
  EXPECT_NEAR(middle(add, add.rect()), rowMiddle(), 2);
  const QString fifth = List().CurrentField("MealDesc").toString();
  QTest::mouseClick(&add, Qt::LeftButton);
  EXPECT_EQ(Entries().last(), fifth + " 1 3 2026-03-01");
  const QModelIndex second = List().Model().index(1, List().currentIndex().column());
  const QPoint place = List().visualRect(second).center();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Entries().size(), 2);
  EXPECT_EQ(Entries().last(), List().Model().FieldOf(1, "MealDesc").toString() + " 1 3 2026-03-01");
  // A search without a result leaves nothing to add.
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(add.isHidden());
  EXPECT_FALSE(Find<QPushButton>(*window, "cmdOK").isEnabled());
  Key(Qt::Key_Backtab, Qt::ControlModifier);
  EXPECT_TRUE(add.isVisible());
}

TEST_F(AddMealTest, RefusesInOrderAndGoesToTheField) {
  Open();
  TypeInto(*window, "txtDate", "tomorrow");
  TypeInto(*window, "txtServ(0)", "1/2");
  session.boxes.Expect("Invalid Date", "Please choose or enter a valid date for this food or meal.");
  Click("cmdOK");
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtDate");
  TypeInto(*window, "txtDate", "12/24/2026");
  session.boxes.Expect("Invalid Number of Servings",
                       "Please enter a number of servings for this food.  The default number of servings is 1.");
  Click("cmdOK");
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtServ(0)");
  EXPECT_TRUE(window->isVisible());
  Type("0");
  Choose(*window, "cboMealType", 9);
  Click("cmdOK");
  EXPECT_TRUE(Entries().last().endsWith(" 0 9 2026-12-24"));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(AddMealTest, AFailedAddIsToldAndStays) {
  Open();
  TypeInto(*window, "txtServ(0)", "1e300");
  session.boxes.Expect("Error Adding Food", "An error occurred while adding this food.");
  Click("cmdOK");
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(Entries().isEmpty());
  EXPECT_TRUE(session.LogLines().last().contains("basMain, AddRec"));
}

TEST_F(AddMealTest, TheSelectorFillsTheServings) {
  Open();
  Find<QWidget>(*window, "txtServ(0)").setFocus();
  Key(Qt::Key_F4);
  QWidget &selector = Find<QWidget>(*window, "fraServings");
  ASSERT_TRUE(selector.isVisible());
  const auto toggle = [&](const char *name) -> QAbstractButton & { return Find<QAbstractButton>(selector, name); };
  EXPECT_TRUE(toggle("pshServings(8)").isChecked());
  QTest::mouseClick(&toggle("pshServings(4)"), Qt::LeftButton);
  QTest::mouseClick(&toggle("pshServings(10)"), Qt::LeftButton);
  EXPECT_EQ(TextOf(*window, "txtServ(0)"), "3.5");
  EXPECT_TRUE(toggle("pshServings(4)").isChecked() && !toggle("pshServings(8)").isChecked());
  QTest::mouseClick(&Find<QAbstractButton>(selector, "pnlServingsClose"), Qt::LeftButton);
  EXPECT_FALSE(selector.isVisible());
  EXPECT_TRUE(window->isVisible());
  QTest::mouseClick(&Find<QAbstractButton>(*window, "cmdServ(0)"), Qt::LeftButton);
  QTest::keyClick(&selector, Qt::Key_Escape);
  EXPECT_FALSE(selector.isVisible());
  EXPECT_TRUE(window->isVisible()) << "Esc closes the selector alone";
}

TEST_F(AddMealTest, FindsInTheListAndSaysWhenNothingIsThere) {
  Open();
  QLineEdit &field = Find<QLineEdit>(*window, "txtFind");
  field.setFocus();
  Type("cheddar");
  Key(Qt::Key_Return);
  const int first = List().currentIndex().row();
  EXPECT_TRUE(List().CurrentField("MealDesc").toString().contains("cheddar", Qt::CaseInsensitive));
  Click("cmdFind");
  EXPECT_GT(List().currentIndex().row(), first);
  field.setText("qqqq");
  session.boxes.Expect("Find Food", "No foods were found matching that description.");
  Click("cmdFind");
  EXPECT_TRUE(Entries().isEmpty()) << "Enter in the text adds nothing";
}

TEST_F(AddMealTest, ANewFoodIsSelectedAndNothingInTheListCanBeChanged) {
  session->windows.pickedFoodSort = "-Protein";
  Open();
  EXPECT_EQ(Find<QComboBox>(*window, "cboSort").currentData(), "-Protein") << "the order of last time";
  Choose(*window, "cboRecordTypeMeals", -3);
  EXPECT_FALSE(Find<QPushButton>(*window, "cmdOK").isEnabled()) << "nothing was eaten lately";
  WhenModal([](QWidget &dialog) {
    TypeInto(dialog, "txtMealDesc", "Fresh food");
    TypeInto(dialog, "txtAddRec0(1)", "120");
    FoodWindowTest::Click(dialog, "cmdOK");
  });
  Click("cmdNewMeal");
  EXPECT_EQ(List().CurrentField("MealDesc"), "Fresh food");
  window->activateWindow();  // as the desktop does when a dialog above it closes
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  ASSERT_EQ(QApplication::focusWidget(), &List());
  Key(Qt::Key_F2);
  EXPECT_EQ(List().OpenEditor(), nullptr);
  Key(Qt::Key_Delete);
  Key(Qt::Key_Return);
  EXPECT_EQ(Entries().last(), "Fresh food 1 3 2026-03-01");
  EXPECT_EQ(session.ValueOf("Calories", "meals", "PersonID=1 AND RecordID=1"), "120");
}

TEST_F(AddMealTest, TheDateMayBeFixedAndAnIngredientHasNeitherDateNorMeal) {
  Open(JournalKind::Quick());
  EXPECT_FALSE(Find<QWidget>(*window, "txtDate").isEnabled());
  EXPECT_FALSE(Find<QWidget>(*window, "cmdDate").isEnabled());
  AddOwn("Aaa");
  std::vector<MealEntry> added;
  OpenForRecipe([&](const MealEntry &entry) {
    added.push_back(entry);
    return added.size() < 2;
  });
  EXPECT_EQ(window->findChild<QWidget *>("txtDate"), nullptr);
  EXPECT_EQ(window->findChild<QWidget *>("cboMealType"), nullptr);
  EXPECT_TRUE(Find<QWidget>(*window, "pnlRecipePic").isVisible());
  TypeInto(*window, "txtServ(0)", "2");
  Click("cmdSelectFood");
  ASSERT_EQ(added.size(), 1u);
  EXPECT_EQ(added[0].Amount, "2");
  EXPECT_EQ(Added(), "Added: 2 x Aaa");
  Click("cmdOK");
  EXPECT_TRUE(window->isVisible()) << "refused: it does not close";
}

}  // namespace
}  // namespace trimlog
