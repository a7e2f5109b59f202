#include "catalogs/windows/food_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "catalogs/food_lists.h"
#include "catalogs/windows/frmDailyValues.h"
#include "catalogs/windows/nutrient_fields.h"
#include "core/session/failure_guard.h"
#include "platform/text/text_format.h"
#include "platform/windows/fields/number_field.h"
#include "platform/windows/fields/text_field.h"

namespace trimlog {

namespace {

constexpr int linesOfTheRest = 18;  // heading, texts, buttons, and the desktop's own frame

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

  AddNutrients(layout);
  AddCommands(layout);
  ConnectDerived();
  setFocusProxy(txtMealDesc);
}

void FoodPage::AddTexts(QFormLayout *form) {
  txtMealDesc = new TextField(QStringLiteral("txtMealDesc"), QStringLiteral("Description"), foodTextLength, this);
  txtMealDesc->setText(food_.MealDesc);
  form->addRow(QStringLiteral("&Description:"), txtMealDesc);
  if (IsNew()) {
    txtAmount = new TextField(QStringLiteral("txtAmount"), QStringLiteral("Serving size"), foodTextLength, this);
    form->addRow(QStringLiteral("Ser&ving size:"), txtAmount);
  }
  cboMealGroups = new QComboBox(this);
  cboMealGroups->setObjectName(QStringLiteral("cboMealGroups"));
  for (const FoodGroup &group : FoodGroups(session_)) cboMealGroups->addItem(group.text, group.key);
  cboMealGroups->setCurrentIndex(cboMealGroups->findData(food_.MealGroupID));
  form->addRow(QStringLiteral("Food &group:"), cboMealGroups);
  if (IsNew()) {
    txtGIValue =
        new NumberField(QStringLiteral("txtGIValue"), QStringLiteral("Glycemic index value"), session_.locale, this);
    txtGIValue->SetRange(0, highestNutrient);
    form->addRow(QStringLiteral("G&I value:"), txtGIValue);
  }
}

void FoodPage::AddNutrients(QVBoxLayout *layout) {
  // All fields in sight where the screen has room for them and the rest of the dialog.
  const QSize screenRoom = screen()->availableSize() - QSize(80, fontMetrics().height() * linesOfTheRest);
  layout->addWidget(ScrolledNutrients(session_, FoodNutrientFields(), screenRoom, this, &nutrients_), 1);
  if (!IsNew()) nutrients_->Show(food_.nutrients);
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
  layout->addLayout(row);
}

void FoodPage::ConnectDerived() {
  following_ = std::make_unique<FollowingFields>(
      [this](int nutrientID) { return nutrients_->TextOf(nutrientID); },
      [this](int nutrientID, const QString &text) { nutrients_->SetText(nutrientID, text); }, IsNew(), session_.locale);
  for (const int id : FollowingFields::Leading()) {
    // An absurd amount cannot be followed; storing the food says so.
    connect(&nutrients_->Of(id), &QLineEdit::editingFinished, this,
            [this, id] { GuardedQuietly([&] { following_->Left(id); }); });
  }
}

void FoodPage::OnCalculateCalories() {
  BoxButton answer = BoxButton::Yes;
  if (following_->HoldsCalories()) {
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
  Guarded(session_, failure, [&] { following_->CalculateCalories(answer == BoxButton::Yes); });
}

void FoodPage::OnDailyValues() {
  frmDailyValues converter(session_, this);
  if (converter.exec() != QDialog::Accepted) return;
  // Only what was given changes: the fields that follow an amount follow one that is typed.
  for (auto amount = converter.Amounts().cbegin(); amount != converter.Amounts().cend(); ++amount) {
    following_->Put(amount.key(), amount.value());
  }
}

bool FoodPage::CheckNumber(NumberField *field) {
  const QString complaint = field ? field->Complaint() : QString();
  if (complaint.isEmpty()) return true;
  session_.boxes.Critical(QStringLiteral("Invalid Value"), complaint);
  field->setFocus();
  field->selectAll();
  return false;
}

// Blanks around a description go when it is changed, not when it is only looked at.
QString FoodPage::TypedDescription() const {
  return txtMealDesc->text() == food_.MealDesc ? food_.MealDesc : txtMealDesc->text().trimmed();
}

FoodRecord FoodPage::Typed() const {
  FoodRecord food = food_;
  food.MealDesc = TypedDescription();
  if (cboMealGroups->currentIndex() >= 0) food.MealGroupID = cboMealGroups->currentData().toInt();
  if (txtAmount) food.Amount = txtAmount->text().trimmed();
  if (txtGIValue) food.GIValue = txtGIValue->Number();
  food.nutrients = nutrients_->Typed();
  return food;
}

bool FoodPage::Store() {
  if (TypedDescription().isEmpty()) {
    session_.boxes.Critical(QStringLiteral("Description Required"),
                            QStringLiteral("Please enter a description for this food or meal."));
    txtMealDesc->setFocus();
    return false;
  }
  if (!CheckNumber(txtGIValue) || !CheckNumber(nutrients_->FirstWrong())) return false;
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
