#include "platform/text/rounding.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "platform/error.h"
#include "platform/text/decimal_digits.h"

namespace trimlog {

namespace {

template <typename Range>
int WholeWithin(double value) {
  const double whole = std::nearbyint(value);  // the default rounding mode sends halves to the even neighbour
  // Written so that a value that is not a number fails it too.
  if (!(whole >= std::numeric_limits<Range>::min() && whole <= std::numeric_limits<Range>::max())) {
    throw Error(error_number::overflow, QStringLiteral("Overflow"));
  }
  return static_cast<int>(whole);
}

}  // namespace

double RoundTo(double value, int digits) {
  const double scale = std::pow(10.0, digits);
  return std::floor(value * scale + 0.5) / scale;
}

int Whole(double value) { return WholeWithin<qint16>(value); }

int WholeLong(double value) { return WholeWithin<qint32>(value); }

double RoundHalfAway(double value, int digits) {
  DecimalDigits number = DigitsOf(value);
  number.RoundHalfAway(digits);
  const std::string text = "0." + number.digits + "e" + std::to_string(number.point);
  double rounded = 0;
  std::from_chars(text.data(), text.data() + text.size(), rounded);
  return number.negative && rounded != 0 ? -rounded : rounded;
}

}  // namespace trimlog
