#include "core/profiles/height.h"

#include "core/settings/unit_system.h"

namespace trimlog {

namespace {

constexpr double metresPerInch = 0.0254;
// The shortest and the tallest people known lie well between.
constexpr double shortest = 0.6;
constexpr double tallest = 3;

}  // namespace

double HeightAsOneNumber(double heightFeet, double heightInches, int UomID) {
  return heightFeet * (UomID == poundsSystem ? 12 : 100) + heightInches;
}

double HeightInMetres(double heightFeet, double heightInches, int UomID) {
  const double height = HeightAsOneNumber(heightFeet, heightInches, UomID);
  return UomID == poundsSystem ? height * metresPerInch : height / 100;
}

bool IsHeightOfPerson(double heightFeet, double heightInches, int UomID) {
  const double metres = HeightInMetres(heightFeet, heightInches, UomID);
  return heightFeet >= 0 && heightInches >= 0 && metres >= shortest && metres <= tallest;
}

QString RefusedHeight(double heightFeet, double heightInches, int UomID) {
  const bool notTold = heightFeet == 0 && heightInches == 0;
  return notTold || IsHeightOfPerson(heightFeet, heightInches, UomID) ? QString()
                                                                      : QStringLiteral("Please enter a valid height.");
}

}  // namespace trimlog
