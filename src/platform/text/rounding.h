#pragma once

namespace trimlog {

// Three roundings occur in this program and they differ. Each place names the one it means.

/// Half up: Int(value x 10^digits + 0.5) / 10^digits, so -2.5 becomes -2. For shown statistics.
double RoundTo(double value, int digits);

/// Halves to the even neighbour: 2.5 -> 2, 3.5 -> 4. What storing into a whole-number column does. Throws overflow
/// beyond the 16-bit range.
int Whole(double value);
/// The same for the 32-bit range.
int WholeLong(double value);

/// Halves away from zero, on the decimal digits of the number as people see it (its shortest form), so that 1.005 to
/// two digits is 1.01. What display patterns do.
double RoundHalfAway(double value, int digits);

}  // namespace trimlog
