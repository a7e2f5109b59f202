#pragma once

#include <string>

namespace trimlog {

/// A finite number as people see it: its sign and the digits of its shortest form that reads back as the same double.
/// The value is 0.d1d2d3... times 10 to the power of `point`; zero has no digits.
struct DecimalDigits {
  bool negative = false;
  std::string digits;  ///< '0' to '9', neither leading nor trailing zeros
  int point = 0;

  /// Rounds to a number of decimals (negative: to tens, hundreds, ...), halves away from zero.
  void RoundHalfAway(int decimals);
  /// The digit with the weight 10 to the power of `power`.
  char At(int power) const;
};

/// Throws overflow for a number that is not finite.
DecimalDigits DigitsOf(double value);

}  // namespace trimlog
