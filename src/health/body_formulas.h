#pragma once

#include <QDate>
#include <QString>

#include "core/profiles/height.h"
#include "core/settings/unit_system.h"

namespace trimlog {

class Session;

// The body formulas. Each stands here twice where a profile is concerned: as a pure function of its inputs, and as a
// thin reader that takes the current profile's data from the file. Weights and sizes are in the unit system given by
// UomID: 1 pounds, feet and inches; anything else kilograms, metres and centimetres.

/// What the formulas ask of a profile, as it is stored.
struct BodyProfile {
  int GenderID = 0;         ///< 1 male; every other value counts as female, 0 is "not told"
  QDate BirthDate;          ///< invalid: not told
  double HeightFeet = 0;    ///< feet, or metres
  double HeightInches = 0;  ///< inches, or centimetres

  /// The whole height as one number, inches or centimetres. Throws overflow beyond the 16-bit range.
  int WholeHeight(int UomID) const;
};
BodyProfile ReadBodyProfile(const Session &session);

/// The body mass index, weight in kilograms over height in metres squared (Adolphe Quetelet, "Sur l'homme", 1835),
/// rounded to a whole number, halves to even; the whole number is what the risk bands compare. A pound counts as
/// 0.454 kg. Throws divisionByZero for a height of 0 or less, overflow beyond the 16-bit range.
int CalcBMI(double weight, double heightFeet, double heightInches, int UomID);
/// The same before it is rounded.
double UnroundedBMI(double weight, double heightFeet, double heightInches, int UomID);
/// The same with the height of the session's profile.
int CalcBMI(const Session &session, double weight);

/// The weight that gives an index at a height, rounded like the index. A kilogram counts as 2.205 lbs here, which is
/// not the inverse of 0.454; both figures are long established in the advice given and stay.
int WeightForBMI(int bmi, double heightFeet, double heightInches, int UomID);
/// The same in the session's unit system; `heightFeet` 0 takes the height of the session's profile.
int WeightForBMI(const Session &session, int bmi, double heightFeet = 0, double heightInches = 0);

enum class WholeSpan { Months = 1, Years = 2, Days = 3 };

/// Completed months or years, or days, from one date to another as text; "0" for an invalid `from` and for anything
/// below zero. An invalid `to` means `today`.
QString WholeDateDiff(const QDate &from, WholeSpan span, const QDate &to, const QDate &today);

/// The age that a person is shown and that targets go by: completed years, and in the first year of life the difference
/// of the calendar years.
int AgeInYears(const QDate &birthDate, const QDate &today);

/// The basal metabolic rate in kilocalories a day (J. A. Harris and F. G. Benedict, "A Biometric Study of Basal
/// Metabolism in Man", 1919, constants rounded). `age` in years, `height` in inches or centimetres. Not rounded. A
/// kilogram counts as 2.2046 lbs, an inch as 2.54 cm.
double CalcBMR(double weight, int age, int height, int gender, int UomID);
/// The session's profile on a date: its latest weight on or before the date, its age as the difference of calendar
/// years. 0 when there is no such weight or no birth date: no rate can be told for that day.
double CalcBMR(const Session &session, const QDate &date);

/// Body fat as a fraction (0.2 = 20 percent) from the waist and the weight, never below 0. The regression of lean mass
/// on weight and waist is J. H. Wilmore's and A. R. Behnke's (Journal of Applied Physiology 27, 1969), in the form for
/// pounds and inches that the YMCA's fitness tests made common (L. A. Golding and others, "The Y's Way to Physical
/// Fitness", 1982): 98.42 is the men's constant, 76.76 the women's. Throws divisionByZero for a weight of 0.
double CalcBodyFat(double waist, double weight, int gender, int UomID);
/// The same for the session's profile: `gender` 0 takes the profile's; a valid `date` replaces `weight` by the latest
/// one on or before it, and the result is 0 when there is none.
double CalcBodyFat(const Session &session, double waist, double weight, int gender, const QDate &date);

}  // namespace trimlog
