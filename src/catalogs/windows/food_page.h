#pragma once

#include <memory>

#include "catalogs/following_fields.h"
#include "catalogs/food_catalog.h"
#include "core/windows/profiles/add_rec_page.h"

class QComboBox;
class QFormLayout;
class QVBoxLayout;

namespace trimlog {

class NumberField;
class NutrientFields;
class TextField;

/// The page with everything about one food: for a new food of the user's own, and to see and edit all nutrients of a
/// stored one.
class FoodPage : public AddRecPage {
  Q_OBJECT
 public:
  /// A new food, in a group.
  FoodPage(Session &session, int mealGroupID, QWidget *parent);
  /// All nutrients of a stored food.
  FoodPage(Session &session, const FoodRecord &food, QWidget *parent);

  QString Title() const override;
  QString Header() const override;
  bool Store() override;
  int MealID() const { return food_.MealID; }

 private:
  bool IsNew() const { return food_.MealID == 0; }
  void Build();
  void AddTexts(QFormLayout *form);
  void AddNutrients(QVBoxLayout *layout);
  void AddCommands(QVBoxLayout *layout);
  void ConnectDerived();
  void OnCalculateCalories();
  void OnDailyValues();
  bool CheckNumber(NumberField *field);
  QString TypedDescription() const;
  FoodRecord Typed() const;

  Session &session_;
  FoodRecord food_;
  TextField *txtMealDesc = nullptr;
  TextField *txtAmount = nullptr;
  NumberField *txtGIValue = nullptr;
  QComboBox *cboMealGroups = nullptr;
  NutrientFields *nutrients_ = nullptr;
  std::unique_ptr<FollowingFields> following_;
};

}  // namespace trimlog
