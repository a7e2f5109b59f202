#pragma once

#include <QDate>
#include <QString>

namespace trimlog {

class Session;

/// How calories are shown: those of changed minutes are kept unrounded, and nobody reads a dozen decimals.
inline const QString caloriesPattern = QStringLiteral("0.###");

/// How many times the calories of other minutes are those of the stored ones: new over stored, and 1 where no minutes
/// were stored (0), since nothing can be concluded from them.
double MinutesFactor(double storedMinutes, double newMinutes);

/// Calories times such a factor, unrounded. Throws overflow for what no number can hold.
double CaloriesTimes(double calories, double factor);

/// The calories of listed exercises are stated for a body of this weight: 150 lbs or 68 kg.
double ReferenceBodyWeight(int UomID);

/// The session's profile on exactly this date, over the reference weight; 1 when no weight was noted on that day.
double BodyWeightFactor(const Session &session, const QDate &date);

/// Calories of a listed exercise for a body: whole, halves to even. Throws overflow beyond the 16-bit range.
int CaloriesForBody(double listedCalories, double bodyWeightFactor);

}  // namespace trimlog
