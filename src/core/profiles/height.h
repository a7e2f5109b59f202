#pragma once

#include <QString>

namespace trimlog {

/// A height from its two numbers in inches or centimetres, as UomID says.
double HeightAsOneNumber(double heightFeet, double heightInches, int UomID);

/// A height in metres from its two numbers, in the unit system given by UomID. One of the two may hold it all: 0 metres
/// and 178 centimetres are 1.78.
double HeightInMetres(double heightFeet, double heightInches, int UomID);

/// Is it a person's height in that unit system? "170 metres" and "1 foot 11" (which 1 m 70 becomes when the units are
/// changed) are not.
bool IsHeightOfPerson(double heightFeet, double heightInches, int UomID);

/// Why a height cannot be kept: a sentence, or "". Twice 0 means "not told" and can be.
QString RefusedHeight(double heightFeet, double heightInches, int UomID);

}  // namespace trimlog
