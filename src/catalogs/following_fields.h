#pragma once

#include <QLocale>
#include <QMap>
#include <functional>

#include "catalogs/food_derived.h"

namespace trimlog {

/// The nutrient fields of one food as they are typed: which of them follow when the amount of another is left, by the
/// rules of food_derived. Knows the fields by their nutrient's number and shows nothing itself.
class FollowingFields {
 public:
  using Read = std::function<QString(int nutrientID)>;
  using Show = std::function<void(int nutrientID, const QString &text)>;

  /// `isNew`: nobody typed net carbs of the food before, so that they follow always. Begins with what the fields hold.
  FollowingFields(Read read, Show show, bool isNew, const QLocale &locale);

  /// The nutrients that others follow.
  static const QList<int> &Leading();
  /// The field of a leading nutrient was left: what follows it follows, if it was changed. Throws overflow for an
  /// absurd amount.
  void Left(int nutrientID);
  /// An amount that came otherwise than by typing; nothing follows it until it is typed over.
  void Put(int nutrientID, const QString &amount);

  bool HoldsCalories() const;  ///< one of the calorie and percent fields has a value, so that replacing is worth a word
  void CalculateCalories(bool replaceAll);

 private:
  CalorieFields Shown() const;

  Read read_;
  Show show_;
  bool isNew_;
  QLocale locale_;
  QMap<int, QString> former_;  ///< of the leading fields, when they were left last
};

}  // namespace trimlog
