#pragma once

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

#include "health/net_calories.h"
#include "journal/day/journal_kind.h"
#include "journal/servings_rule.h"

namespace trimlog {

class Session;

// The words and figures below the list of a day's meals, on the screen and on paper.

/// "Daily Totals  ", among all dates "Daily Totals (3/28/2026)  ", in a small window "Daily Totals:".
QString DailyTotalsCaption(const JournalKind &kind, JournalView view, const QDate &date, const QLocale &locale);
/// What stands before the targets row, on paper too.
QString TargetsCaption();

/// The shown position that holds the calories; nothing when none does: then there are no net calories.
std::optional<std::size_t> CaloriesPosition(const Nutrients &nutrients);

/// The net calories in words of a day with these calories eaten, as its list shows them, an unsaved edit included.
/// What was burned is the stored sum.
QString MealsNetCalories(const Session &session, NetCaloriesDay day, double eaten);

/// What a list of meals prints below its rows.
struct MealsClosing {
  QDate date;
  ShownCells totals;
  std::optional<ShownCells> targets = {};  ///< where they are shown
  QString netCalories = {};                ///< the text; "" where they are not shown
};
/// A blank row, the totals, the targets and the net calories, figure and formula; one text for each of the columns
/// printed, told by their names. Captions stand under the food.
std::vector<QStringList> MealsClosingRows(const JournalKind &kind, const MealsClosing &closing,
                                          const QStringList &columns, const QLocale &locale);

/// The title over a printed list of meals, behind the profile's name.
QString MealsPrintTitle(const JournalKind &kind, JournalView view, const QDate &date, const QLocale &locale);

}  // namespace trimlog
