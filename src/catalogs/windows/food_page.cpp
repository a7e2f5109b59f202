#include "catalogs/windows/food_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "catalogs/food_lists.h"
#include "catalogs/windows/frmDailyValues.h"
#include "core/session/failure_guard.h"
#include "platform/text/text_format.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int nutrientRows = 12;

/// The fields that follow the grams of one nutrient.
struct GramsRule {
  int nutrientID;
  int caloriesID;
  int percentID;
  int caloriesPerGram;
};
constexpr std::array<GramsRule, 3> gramsRules = {{
    {nutrient_id::fat, 22, nutrient_id::calFromFatPct, caloriesPerGramOfFat},
    {nutrient_id::carbs, 26, nutrient_id::calFromCarbPct, caloriesPerGramOfCarbs},
    {nutrient_id::protein, 24, nutrient_id::calFromProteinPct, caloriesPerGramOfProtein},
}};

}  // namespace

FoodPage::FoodPage(Session &session, int mealGroupID, QWidget *parent) : AddRecPage(parent), session_(session) {
  food_.MealGroupID = mealGroupID;
  Build();
}

FoodPage::FoodPage(Session &session, const FoodRecord &food, QWidget *parent)
    : AddRecPage(parent), session_(session), food_(food) {
  Build();
}

QString FoodPage::Title() const {
  return IsNew() ? QStringLiteral("Create a New Food or Meal") : QStringLiteral("View/Edit All Nutrients");
}

QString FoodPage::Header() const {
  return IsNew() ? QStringLiteral("Enter the information for your new food or meal and click <OK>.")
                 : QStringLiteral("Edit the nutrients for the selected food and click <OK>.");
}

void FoodPage::Build() {
  setObjectName(QStringLiteral("pnlAddRec(0)"));
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto *form = new QFormLayout;
  layout->addLayout(form);
  AddTexts(form);

  auto *scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);  // Tab goes from field to field
  auto *panel = new QWidget(scroll);
  auto *grid = new QGridLayout(panel);
  grid->setHorizontalSpacing(10);
  AddNutrients(grid);
  scroll->setWidget(panel);
  // All fields in sight where the screen has room for them; the rest of the dialog takes about the margin.
  const QSize room = screen()->availableSize() - QSize(60, 300);
  scroll->setMinimumSize((panel->sizeHint() + QSize(24, 4)).boundedTo(room));
  layout->addWidget(scroll, 1);
  AddCommands(layout);
  if (!IsNew()) ShowFood();
  ConnectDerived();
  setFocusProxy(txtMealDesc);
}

void FoodPage::AddTexts(QFormLayout *form) {
  txtMealDesc = new TextField(QStringLiteral("txtMealDesc"), QStringLiteral("Description"), foodTextLength, this);
  form->addRow(QStringLiteral("&Description:"), txtMealDesc);
  if (IsNew()) {
    txtAmount = new TextField(QStringLiteral("txtAmount"), QStringLiteral("Serving size"), foodTextLength, this);
    form->addRow(QStringLiteral("Ser&ving size:"), txtAmount);
  }
  cboMealGroups = new QComboBox(this);
  cboMealGroups->setObjectName(QStringLiteral("cboMealGroups"));
  cboMealGroups->setAccessibleName(QStringLiteral("Food group"));
  GuardedQuietly([&] {
    for (const FoodChoice &group : FoodGroupChoices(session_)) {
      if (group.key != allFoodGroups) cboMealGroups->addItem(group.text, group.key);
    }
  });
  cboMealGroups->setCurrentIndex(cboMealGroups->findData(food_.MealGroupID));
  form->addRow(QStringLiteral("Food &group:"), cboMealGroups);
  if (IsNew()) {
    txtGIValue =
        new NumberField(QStringLiteral("txtGIValue"), QStringLiteral("Glycemic index value"), session_.locale, this);
    form->addRow(QStringLiteral("G&I value:"), txtGIValue);
  }
}

void FoodPage::AddNutrients(QGridLayout *grid) {
  int place = 0;
  for (const int id : NutrientDialogOrder()) {
    const QString label = NutrientLabel(session_.nutrients, id);
    auto *field = new NumberField(QStringLiteral("txtAddRec0(%1)").arg(id), label, session_.locale, this);
    field->setProperty("DataField", Definition(session_.nutrients, id).fieldName);
    field->SetRange(0, id == nutrient_id::netCarbs ? highestNetCarbs : highestNutrient);
    txtAddRec0.insert(id, field);
    auto *caption = new QLabel(label, this);
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(field);
    const int column = place / nutrientRows * 2;
    grid->addWidget(caption, place % nutrientRows, column, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(field, place % nutrientRows, column + 1);
    ++place;
  }
}

void FoodPage::AddCommands(QVBoxLayout *layout) {
  auto *row = new QHBoxLayout;
  const auto add = [this, row](const QString &name, const QString &caption, const QString &tip) {
    auto *button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
  };
  connect(add(QStringLiteral("cmdCalcCal"), QStringLiteral("&Calculate Calories and Percentages"),
              QStringLiteral("Works out the calories from fat, carbs and protein, and their shares.")),
          &QPushButton::clicked, this, &FoodPage::OnCalculateCalories);
  connect(add(QStringLiteral("cmdCalcDV"), QStringLiteral("Convert &from % of Daily Value..."),
              QStringLiteral("Turns the percentages of a food label into amounts.")),
          &QPushButton::clicked, this, &FoodPage::OnDailyValues);
  row->addStretch();
  auto *note = new QLabel(QStringLiteral("* Carbs less fiber and sugar alcohols"), this);
  row->addWidget(note);
  layout->addLayout(row);
}

void FoodPage::ShowFood() {
  txtMealDesc->setText(food_.MealDesc);
  for (auto field = txtAddRec0.cbegin(); field != txtAddRec0.cend(); ++field) {
    if (const auto value = food_.nutrients.At(field.key())) {
      const NutrientDef &definition = Definition(session_.nutrients, field.key());
      field.value()->SetNumber(*value, GetNutrientFormat(definition.fieldName));
    }
  }
}

void FoodPage::ConnectDerived() {
  for (const int id :
       {nutrient_id::carbs, nutrient_id::fiber, nutrient_id::sugarAlcohols, nutrient_id::fat, nutrient_id::protein}) {
    textOnEntry_.insert(id, QString());
    connect(txtAddRec0[id], &QLineEdit::editingFinished, this, [this, id] { OnGramsLeft(id); });
  }
  for (auto text = textOnEntry_.begin(); text != textOnEntry_.end(); ++text) text.value() = TextOf(text.key());
}

QString FoodPage::TextOf(int nutrientID) const { return txtAddRec0[nutrientID]->text(); }

void FoodPage::OnGramsLeft(int nutrientID) {
  const bool changed = TextOf(nutrientID) != textOnEntry_[nutrientID];
  textOnEntry_[nutrientID] = TextOf(nutrientID);
  const bool partOfNetCarbs = nutrientID != nutrient_id::fat && nutrientID != nutrient_id::protein;
  // An absurd amount cannot be followed; storing the food says so.
  GuardedQuietly([&] {
    // Net carbs that somebody typed for a stored food stay until its carbs are changed.
    if (partOfNetCarbs && (changed || IsNew())) ShowNetCarbs();
    if (changed) ShowCaloriesFrom(nutrientID);
  });
}

void FoodPage::ShowNetCarbs() {
  txtAddRec0[nutrient_id::netCarbs]->setText(DerivedNetCarbs(TextOf(nutrient_id::carbs), TextOf(nutrient_id::fiber),
                                                             TextOf(nutrient_id::sugarAlcohols), session_.locale));
}

void FoodPage::ShowCaloriesFrom(int nutrientID) {
  for (const GramsRule &rule : gramsRules) {
    if (rule.nutrientID != nutrientID) continue;
    const CaloriesFrom from =
        DerivedCalories(TextOf(nutrientID), rule.caloriesPerGram, TextOf(nutrient_id::calories), session_.locale);
    txtAddRec0[rule.caloriesID]->setText(from.calories);
    txtAddRec0[rule.percentID]->setText(from.percent);
  }
}

CalorieFields FoodPage::ShownCalorieFields() const {
  return {{TextOf(22), TextOf(23)}, {TextOf(26), TextOf(27)}, {TextOf(24), TextOf(25)}};
}

void FoodPage::ShowCalorieFields(const CalorieFields &fields) {
  const std::array<const CaloriesFrom *, 3> shown = {&fields.fat, &fields.carbs, &fields.protein};
  for (std::size_t i = 0; i < gramsRules.size(); ++i) {
    txtAddRec0[gramsRules[i].caloriesID]->setText(shown[i]->calories);
    txtAddRec0[gramsRules[i].percentID]->setText(shown[i]->percent);
  }
}

void FoodPage::OnCalculateCalories() {
  const CalorieFields present = ShownCalorieFields();
  BoxButton answer = BoxButton::Yes;
  if (HoldsCalorieValues(present, session_.locale)) {
    answer = session_.boxes.Show(
        {QStringLiteral("Overwrite Existing Values?"),
         QStringLiteral("For Protein, Carbs, and Fat, at least one of the calorie or percentage fields already has a "
                        "value.  Would you like to replace those values that you have already entered?"),
         BoxIcon::Question,
         {BoxButton::Yes, BoxButton::No, BoxButton::Cancel},
         BoxButton::Yes});
  }
  if (answer == BoxButton::Cancel) return;
  const FailureExit failure{QStringLiteral("frmAddRec"), QStringLiteral("cmdCalcCal_Click"),
                            QStringLiteral("Error Calculating Calories"),
                            QStringLiteral("The calories could not be calculated from these amounts.")};
  Guarded(session_, failure, [&] {
    ShowCalorieFields(CalculatedCalories(present, TextOf(nutrient_id::fat), TextOf(nutrient_id::carbs),
                                         TextOf(nutrient_id::protein), TextOf(nutrient_id::calories),
                                         answer == BoxButton::Yes, session_.locale));
  });
}

void FoodPage::OnDailyValues() {
  frmDailyValues converter(session_, this);
  if (converter.exec() != QDialog::Accepted) return;
  for (auto amount = converter.Amounts().cbegin(); amount != converter.Amounts().cend(); ++amount) {
    txtAddRec0[amount.key()]->setText(amount.value());
    if (textOnEntry_.contains(amount.key())) OnGramsLeft(amount.key());
  }
}

bool FoodPage::CheckNumbers() {
  QList<NumberField *> fields = txtAddRec0.values();
  if (txtGIValue) fields.prepend(txtGIValue);
  for (NumberField *field : fields) {
    const QString complaint = field->Complaint();
    if (complaint.isEmpty()) continue;
    session_.boxes.Critical(QStringLiteral("Invalid Value"), complaint);
    field->setFocus();
    field->selectAll();
    return false;
  }
  return true;
}

FoodRecord FoodPage::Typed() const {
  FoodRecord food = food_;
  food.MealDesc = txtMealDesc->text().trimmed();
  food.MealGroupID = cboMealGroups->currentData().toInt();
  if (txtAmount) food.Amount = txtAmount->text().trimmed();
  if (txtGIValue) food.GIValue = txtGIValue->Number();
  for (auto field = txtAddRec0.cbegin(); field != txtAddRec0.cend(); ++field) {
    food.nutrients.Set(field.key(), field.value()->Number());
  }
  return food;
}

bool FoodPage::Store() {
  if (txtMealDesc->text().trimmed().isEmpty()) {
    session_.boxes.Critical(QStringLiteral("Description Required"),
                            QStringLiteral("Please enter a description for this food or meal."));
    txtMealDesc->setFocus();
    return false;
  }
  if (!CheckNumbers()) return false;
  const FailureExit failure{QStringLiteral("basMain"), QStringLiteral("AddRec"), QStringLiteral("Error Saving Food"),
                            QStringLiteral("An error occurred while saving this food.  "), true};
  return Guarded(session_, failure, [&] {
    const FoodRecord food = Typed();
    if (IsNew()) {
      food_.MealID = AddFood(session_, food);
    } else {
      SaveFood(session_, food);
    }
  });
}

}  // namespace trimlog
