#include "health/body_formulas.h"

#include "core/session/session.h"
#include "health/basal_rates.h"
#include "platform/store/recordset.h"
#include "platform/text/rounding.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

constexpr int male = 1;

// Three conversions of a pound occur, each established with its own formula.
constexpr double kilogramsPerPoundInIndex = 0.454;
constexpr double poundsPerKilogramInIndex = 2.205;
constexpr double poundsPerKilogram = 2.2046;
constexpr double centimetresPerInch = 2.54;

bool DayReached(const QDate &from, const QDate &to) { return to.day() >= from.day(); }

int CompletedMonths(const QDate &from, const QDate &to) {
  return (to.year() - from.year()) * 12 + to.month() - from.month() - 1 + (DayReached(from, to) ? 1 : 0);
}

int CompletedYears(const QDate &from, const QDate &to) {
  const bool birthdayReached = to.month() > from.month() || (to.month() == from.month() && DayReached(from, to));
  return to.year() - from.year() - 1 + (birthdayReached ? 1 : 0);
}

}  // namespace

int BodyProfile::WholeHeight(int UomID) const { return Whole(HeightAsOneNumber(HeightFeet, HeightInches, UomID)); }

BodyProfile ReadBodyProfile(const Session &session) {
  const Recordset people = session.Data().OpenRecordset(
      QStringLiteral("SELECT people.GenderID, people.BirthDate, people.HeightFeet, people.HeightInches FROM people "
                     "WHERE people.PersonID=?;"),
      {session.profile.CurrentPersonID.toInt()});
  if (people.Eof()) return {};
  return {people.Integer(QStringLiteral("GenderID")), people.Field(QStringLiteral("BirthDate")).toDate(),
          people.Number(QStringLiteral("HeightFeet")), people.Number(QStringLiteral("HeightInches"))};
}

double UnroundedBMI(double weight, double heightFeet, double heightInches, int UomID) {
  const double height = HeightInMetres(heightFeet, heightInches, UomID);
  if (!(height > 0)) throw Error(error_number::divisionByZero, QStringLiteral("The height is not a positive number."));
  const double kilograms = UomID == poundsSystem ? weight * kilogramsPerPoundInIndex : weight;
  return kilograms / (height * height);
}

int CalcBMI(double weight, double heightFeet, double heightInches, int UomID) {
  return Whole(UnroundedBMI(weight, heightFeet, heightInches, UomID));
}

int CalcBMI(const Session &session, double weight) {
  const BodyProfile profile = ReadBodyProfile(session);
  return CalcBMI(weight, profile.HeightFeet, profile.HeightInches, session.settings.UomID);
}

int WeightForBMI(int bmi, double heightFeet, double heightInches, int UomID) {
  const double height = HeightInMetres(heightFeet, heightInches, UomID);
  return Whole(bmi * height * height * (UomID == poundsSystem ? poundsPerKilogramInIndex : 1));
}

int WeightForBMI(const Session &session, int bmi, double heightFeet, double heightInches) {
  const int UomID = session.settings.UomID;
  if (heightFeet != 0) return WeightForBMI(bmi, heightFeet, heightInches, UomID);
  const BodyProfile profile = ReadBodyProfile(session);
  return WeightForBMI(bmi, profile.HeightFeet, profile.HeightInches, UomID);
}

QString WholeDateDiff(const QDate &from, WholeSpan span, const QDate &to, const QDate &today) {
  if (!from.isValid()) return QStringLiteral("0");
  const QDate end = to.isValid() ? to : today;
  qint64 count = 0;
  switch (span) {
    case WholeSpan::Months:
      count = CompletedMonths(from, end);
      break;
    case WholeSpan::Years:
      count = CompletedYears(from, end);
      break;
    case WholeSpan::Days:
      count = from.daysTo(end);
      break;
  }
  return QString::number(std::max<qint64>(count, 0));
}

int AgeInYears(const QDate &birthDate, const QDate &today) {
  const int completed = WholeDateDiff(birthDate, WholeSpan::Years, today, today).toInt();
  if (completed != 0 || !birthDate.isValid()) return completed;
  return DateDiff(QStringLiteral("yyyy"), birthDate, today);
}

double CalcBMR(double weight, int age, int height, int gender, int UomID) {
  if (UomID == poundsSystem) {
    if (gender == male) {
      return (weight * 13.75 / poundsPerKilogram + 66.5 + height * 5.003 * centimetresPerInch) - age * 6.775;
    }
    return (weight * 9.563 / poundsPerKilogram + 655.1 + height * 1.85 * centimetresPerInch) - age * 4.676;
  }
  if (gender == male) return (weight * 13.75 + 66.5 + height * 5.003) - age * 6.775;
  return (weight * 9.563 + 655.1 + height * 1.85) - age * 4.676;
}

double CalcBMR(const Session &session, const QDate &date) { return BasalRates(session, date, date).On(date); }

double CalcBodyFat(double waist, double weight, int gender, int UomID) {
  const double pounds = UomID == poundsSystem ? weight : weight * poundsPerKilogram;
  const double inches = UomID == poundsSystem ? waist : waist / centimetresPerInch;
  if (pounds == 0) throw Error(error_number::divisionByZero, QStringLiteral("The weight is zero."));
  const double constant = gender == male ? -98.42 : -76.76;
  return std::max(0.0, (constant + 4.15 * inches - 0.082 * pounds) / pounds);
}

double CalcBodyFat(const Session &session, double waist, double weight, int gender, const QDate &date) {
  const int genderID = gender != 0 ? gender : ReadBodyProfile(session).GenderID;
  if (!date.isValid()) return CalcBodyFat(waist, weight, genderID, session.settings.UomID);
  const double weightThen = WeightsByDate(session, date, date).On(date);
  return weightThen == 0 ? 0 : CalcBodyFat(waist, weightThen, genderID, session.settings.UomID);
}

}  // namespace trimlog
