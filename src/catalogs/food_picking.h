#pragma once

#include <QDate>
#include <QString>
#include <functional>
#include <optional>

#include "core/session/session.h"
#include "journal/day/day_records.h"
#include "journal/day/journal_doors.h"

namespace trimlog {

/// What the dialog that picks foods is opened with, and what becomes of them: the journal, the planner and the recipe
/// editor each give their own, and the dialog knows none of them.
struct FoodPicking {
  QString caption;
  QString header;
  /// A day's entry has a date and a meal; an ingredient has neither.
  bool forDay = true;
  bool fixedDate = false;  ///< the date is shown and cannot be changed
  QDate date{};            ///< proposed
  int MealTypeID = 1;      ///< proposed
  bool recipesOffered = true;
  /// Stores a picked food; an ingredient uses its food and its servings alone. False when it was refused: a box has
  /// told why. What it throws becomes the box of a failed add.
  std::function<bool(const MealEntry &entry)> add{};
};

/// Foods for a day of the journal or the planner; `opening` must outlive it.
FoodPicking PickingForDay(Session &session, const EntryOpening &opening);

/// What stands in the dialog when a food is added.
struct FoodPicked {
  QDate date;  ///< invalid for a text that is no date
  int MealTypeID = 1;
  QString servings;  ///< as typed
  int MealID = 0;
  ShownCells shown{};  ///< the food's cells in the list
};

enum class PickedField { Date, Servings };
struct PickRefusal {
  PickedField field;
  QString title;
  QString text;
};
/// Why it cannot be added as it stands; nothing when it can. No servings (0) are servings.
std::optional<PickRefusal> AddRecValidate(const FoodPicked &picked, bool forDay, const QLocale &locale);

/// The entry of a food that was found valid: a snapshot of its nutrients as they are now. Throws noCurrentRecord for a
/// food that is gone, overflow for servings that no number can hold.
MealEntry EntryOf(Session &session, const FoodPicked &picked);

/// "Added to Lunch of 3/1/2026: 2.5 x Milk"; for an ingredient, without a meal: "Added: 2.5 x Milk".
QString AddedText(const QString &food, const QString &servings, const QString &meal, const QString &date);

}  // namespace trimlog
