#include "core/windows/controls/fitting_font.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace trimlog {

namespace {

constexpr double smallestShare = 0.6;  ///< of the font's size
constexpr double shrinkStep = 0.25;    ///< points

}  // namespace

QFont FittingFont(const QFont &font, const QString &text, int width) {
  QFont fitting = font;
  if (text.isEmpty() || QFontMetrics(fitting).horizontalAdvance(text) <= width) return fitting;
  double size = QFontInfo(fitting).pointSizeF();
  const double least = size * smallestShare;
  // Step by step: widths are rounded to whole pixels and do not shrink in proportion.
  while (size > least && QFontMetrics(fitting).horizontalAdvance(text) > width) {
    size = std::max(least, size - shrinkStep);
    fitting.setPointSizeF(size);
  }
  return fitting;
}

}  // namespace trimlog
