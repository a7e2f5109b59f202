#pragma once

#include <QLocale>
#include <QString>

#include "weightlog/calendar_month.h"

namespace trimlog {

// What a screen reader says of the calendar: names for fields that show a figure only, and what stands around a weight.

/// "Weight for Monday, 3/2/2026"
QString SpokenDay(const CalendarCell &cell, const QLocale &locale);
/// What the day shows beside its weight: "Lost 1.5. Net Calories (kcal): 2000 eaten - 103 burned = 1897 Cal". `figure`
/// is the name of the nutrient figure shown.
QString SpokenDetails(const CalendarCell &cell, const QString &figure, const Settings &settings, const QLocale &locale);
/// "Loss in the week from 3/1/2026 to 3/7/2026"; rows count from 1.
QString SpokenWeek(const CalendarMonth &month, int row);
/// "Loss in March, 2026"
QString SpokenMonth(const CalendarMonth &month);

}  // namespace trimlog
