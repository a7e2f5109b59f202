#pragma once

#include <QLocale>
#include <QString>
#include <optional>

namespace trimlog {

// The Serving Selector puts servings together of a fraction and a whole number, one toggle for each: members 0 to 6 of
// its toggles are the fractions from 1/8 to 3/4, members 7 to 13 the whole numbers from 0 to 6.

inline constexpr int servingFractionCount = 7;
inline constexpr int servingToggleCount = 14;

/// "1/8", ..., "3/4", "0", ..., "6".
QString ServingToggleCaption(int toggle);

/// The toggles that stand for the servings in a text; none for a part that has no toggle.
struct ServingToggles {
  std::optional<int> fraction;  ///< 0 to 6
  std::optional<int> whole;     ///< 7 to 13
};
ServingToggles TogglesOf(const QString &servings, const QLocale &locale);

/// The servings after a toggle was pressed: the whole number and the fraction that are down then, in at most three
/// decimals. A toggle that was down comes up; what no toggle stood for counts as nothing.
QString ServingsAfter(const QString &servings, int toggle, const QLocale &locale);

}  // namespace trimlog
