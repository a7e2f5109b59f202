#include "core/profiles/height.h"

namespace trimlog {

namespace {

constexpr int feetAndInches = 1;
constexpr double metresPerInch = 0.0254;
// The shortest and the tallest people known lie well between.
constexpr double shortest = 0.6;
constexpr double tallest = 3;

}  // namespace

double HeightInMetres(double heightFeet, double heightInches, int UomID) {
  return UomID == feetAndInches ? (heightFeet * 12 + heightInches) * metresPerInch : heightFeet + heightInches / 100;
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
