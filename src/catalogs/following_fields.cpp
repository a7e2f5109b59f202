#include "catalogs/following_fields.h"

#include <array>

#include "core/data/nutrients.h"

namespace trimlog {

namespace {

/// The fields that follow the grams of one nutrient.
struct GramsRule {
  int nutrientID;
  int caloriesID;
  int percentID;
  int caloriesPerGram;
};
constexpr std::array<GramsRule, 3> gramsRules = {{
    {nutrient_id::fat, nutrient_id::calFromFat, nutrient_id::calFromFatPct, caloriesPerGramOfFat},
    {nutrient_id::carbs, nutrient_id::calFromCarb, nutrient_id::calFromCarbPct, caloriesPerGramOfCarbs},
    {nutrient_id::protein, nutrient_id::calFromProtein, nutrient_id::calFromProteinPct, caloriesPerGramOfProtein},
}};

}  // namespace

const QList<int> &FollowingFields::Leading() {
  static const QList<int> leading = {nutrient_id::carbs, nutrient_id::fiber, nutrient_id::sugarAlcohols,
                                     nutrient_id::fat, nutrient_id::protein};
  return leading;
}

FollowingFields::FollowingFields(Read read, Show show, bool isNew, const QLocale &locale)
    : read_(std::move(read)), show_(std::move(show)), isNew_(isNew), locale_(locale) {
  for (const int id : Leading()) former_.insert(id, read_(id));
}

void FollowingFields::Left(int nutrientID) {
  const bool changed = read_(nutrientID) != former_[nutrientID];
  former_[nutrientID] = read_(nutrientID);
  const bool partOfNetCarbs = nutrientID != nutrient_id::fat && nutrientID != nutrient_id::protein;
  // Net carbs that somebody typed for a stored food stay until its carbs are changed.
  if (partOfNetCarbs && (changed || isNew_)) {
    show_(nutrient_id::netCarbs, DerivedNetCarbs(read_(nutrient_id::carbs), read_(nutrient_id::fiber),
                                                 read_(nutrient_id::sugarAlcohols), locale_));
  }
  for (const GramsRule &rule : gramsRules) {
    if (!changed || rule.nutrientID != nutrientID) continue;
    const CaloriesFrom from =
        DerivedCalories(read_(nutrientID), rule.caloriesPerGram, read_(nutrient_id::calories), locale_);
    show_(rule.caloriesID, from.calories);
    show_(rule.percentID, from.percent);
  }
}

void FollowingFields::Put(int nutrientID, const QString &amount) {
  show_(nutrientID, amount);
  if (former_.contains(nutrientID)) former_[nutrientID] = amount;
}

CalorieFields FollowingFields::Shown() const {
  const auto from = [this](const GramsRule &rule) {
    return CaloriesFrom{read_(rule.caloriesID), read_(rule.percentID)};
  };
  return {from(gramsRules[0]), from(gramsRules[1]), from(gramsRules[2])};
}

bool FollowingFields::HoldsCalories() const { return HoldsCalorieValues(Shown(), locale_); }

void FollowingFields::CalculateCalories(bool replaceAll) {
  const CalorieFields fields =
      CalculatedCalories(Shown(), read_(nutrient_id::fat), read_(nutrient_id::carbs), read_(nutrient_id::protein),
                         read_(nutrient_id::calories), replaceAll, locale_);
  const std::array<const CaloriesFrom *, 3> shown = {&fields.fat, &fields.carbs, &fields.protein};
  for (std::size_t i = 0; i < gramsRules.size(); ++i) {
    show_(gramsRules[i].caloriesID, shown[i]->calories);
    show_(gramsRules[i].percentID, shown[i]->percent);
  }
}

}  // namespace trimlog
