#include "platform/text/decimal_digits.h"

#include <array>
#include <charconv>
#include <cmath>

#include "platform/error.h"

namespace trimlog {

namespace {

void DropTrailingZeros(DecimalDigits &number) {
  while (!number.digits.empty() && number.digits.back() == '0') number.digits.pop_back();
  if (number.digits.empty()) number.point = 0;
}

}  // namespace

DecimalDigits DigitsOf(double value) {
  if (!std::isfinite(value)) throw Error(error_number::overflow, QStringLiteral("Overflow"));
  DecimalDigits number;
  number.negative = std::signbit(value);
  if (value == 0) return number;

  std::array<char, 32> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value), std::chars_format::scientific);
  const std::string_view text(buffer.data(), static_cast<size_t>(end - buffer.data()));
  const size_t exponentAt = text.find('e');
  for (const char c : text.substr(0, exponentAt)) {
    if (c != '.') number.digits += c;
  }
  number.point = std::stoi(std::string(text.substr(exponentAt + 1))) + 1;
  DropTrailingZeros(number);
  return number;
}

char DecimalDigits::At(int power) const {
  const int index = point - 1 - power;
  return index >= 0 && index < static_cast<int>(digits.size()) ? digits[static_cast<size_t>(index)] : '0';
}

void DecimalDigits::RoundHalfAway(int decimals) {
  const int kept = point + decimals;
  if (kept >= static_cast<int>(digits.size())) return;
  if (kept < 0) {
    digits.clear();
    point = 0;
    return;
  }
  const bool up = digits[static_cast<size_t>(kept)] >= '5';
  digits.resize(static_cast<size_t>(kept));
  if (up) {
    size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
    if (i > 0) {
      ++digits[i - 1];
    } else {
      digits.insert(digits.begin(), '1');
      ++point;
    }
  }
  DropTrailingZeros(*this);
}

}  // namespace trimlog
