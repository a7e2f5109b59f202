#pragma once

#include <QList>
#include <QString>
#include <array>
#include <optional>

#include "core/session/session.h"

namespace trimlog {

/// A set of daily targets; set 1 are the daily values of food labels.
struct TargetSet {
  int TargetID = 0;
  QString TargetDesc;
};
/// The key that stands for no set.
inline constexpr int noTargetSet = 0;
/// The kind of a set that a person made, beside 1 labels, 2 recommended allowances, 3 example diets.
inline constexpr int userTargetType = 4;

/// All sets, by number.
QList<TargetSet> TargetSets(const Session &session);
/// The set that the profile's day is held against: the chosen one, the first of all where that is gone, or none.
int TargetSetInForce(const Session &session);

/// Nutrients 1 to 34 have a target that can be typed; trans fat, the last one, has none.
inline constexpr int typedTargets = 34;
/// Texts by NutrientID - 1, in the locale's form; "" for no target.
using TargetTexts = std::array<QString, typedTargets>;
/// The stored targets of a set. Throws noCurrentRecord when it is gone.
TargetTexts LoadTargetFields(const Session &session, int targetID);

/// What a nutrient's column of a target set can hold, or more than anybody means.
double LargestTarget(const QString &fieldName);
/// Why a typed target cannot be stored: "Please type a number from 0 to 32767.". "" where it can, and for a text that
/// is no number, which changes nothing.
QString RefusedTargetField(const Session &session, int nutrientID, const QString &typed);

/// Stores the targets of a set. A text that is no number, or none, leaves what is stored. One transaction. Throws
/// noCurrentRecord when the set is gone.
void SaveTargetFields(Session &session, int targetID, const TargetTexts &typed);
/// Adds a set without targets; returns its number. One transaction.
int AddTargetSet(Session &session, const QString &description);
/// Deletes a set; the current profile, where it stood on it, has none from then on. One transaction.
void DeleteTargetSet(Session &session, int targetID);
/// The current profile's day is held against this set from now on. One transaction; nothing where it is already.
void ChooseTargetSet(Session &session, int targetID);
/// Both, as the closing of their window asks: what was typed where something was, and the choice. One transaction.
void SaveAndChooseTargets(Session &session, int targetID, const std::optional<TargetTexts> &typed);

/// "Selected Target for Ann:"; "Selected Target:" where nobody is signed on.
QString SelectedTargetCaption(const Session &session);

}  // namespace trimlog
