#include "catalogs/servings_choice.h"

#include <array>
#include <cmath>

#include "platform/text/text_format.h"

namespace trimlog {

namespace {

struct ServingFraction {
  double value;
  const char *caption;
};
constexpr std::array<ServingFraction, servingFractionCount> fractions = {
    {{0.125, "1/8"}, {0.2, "1/5"}, {0.25, "1/4"}, {0.333, "1/3"}, {0.5, "1/2"}, {0.667, "2/3"}, {0.75, "3/4"}}};
constexpr double closeEnough = 0.0005;  // the fractions have three decimals

void Press(std::optional<int> &down, int toggle) {
  if (down == toggle) {
    down.reset();
  } else {
    down = toggle;
  }
}

}  // namespace

QString ServingToggleCaption(int toggle) {
  if (toggle >= servingFractionCount) return QString::number(toggle - servingFractionCount);
  return QString::fromLatin1(fractions.at(static_cast<std::size_t>(toggle)).caption);
}

ServingToggles TogglesOf(const QString &servings, const QLocale &locale) {
  ServingToggles toggles;
  const std::optional<double> number = ParseNumber(servings, locale);
  if (!number || *number < 0) return toggles;
  const double whole = std::floor(*number + closeEnough);
  if (whole < servingToggleCount - servingFractionCount) {
    toggles.whole = servingFractionCount + static_cast<int>(whole);
  }
  for (std::size_t i = 0; i < fractions.size(); ++i) {
    if (std::abs(*number - whole - fractions[i].value) < closeEnough) toggles.fraction = static_cast<int>(i);
  }
  return toggles;
}

QString ServingsAfter(const QString &servings, int toggle, const QLocale &locale) {
  ServingToggles toggles = TogglesOf(servings, locale);
  Press(toggle < servingFractionCount ? toggles.fraction : toggles.whole, toggle);
  const int whole = toggles.whole ? *toggles.whole - servingFractionCount : 0;
  if (!toggles.fraction) return QString::number(whole);
  const double fraction = fractions.at(static_cast<std::size_t>(*toggles.fraction)).value;
  return Format(whole + fraction, QStringLiteral("0.###"), locale);
}

}  // namespace trimlog
