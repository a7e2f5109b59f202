#pragma once

#include <QLocale>
#include <QString>
#include <utility>

#include "health/net_calories.h"

namespace trimlog {

/// "-351 Net Calories       Net Cal = 1449 (Consumed) - 300 (Burned) - 1500 (BMR)", without the last term where the
/// basal rate is left out. Numbers in their shortest form, to three decimals.
QString NetCaloriesText(const NetCaloriesDay &day, bool withBasalRate, const QLocale &locale);
/// The figure and the formula of such a text, for print: cut at the blanks between them.
std::pair<QString, QString> SplitNetCaloriesText(const QString &text);

/// The explanation behind "Learn More", and its title.
QString AboutNetCalories();
QString AboutNetCaloriesTitle();

}  // namespace trimlog
