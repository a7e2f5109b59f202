#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QStringList>

namespace trimlog {

inline constexpr double headingPrintSize = 240;  ///< twips: 12 points

/// The font of everything that is printed as text; `size` in twips.
QFont PrintFont(double size, bool bold);

/// A text as lines no wider than `width` twips; its own line ends stay. A word that is wider is broken.
QStringList WrappedLines(const QString &text, double width, const QFont &font, const QFontMetricsF &metrics);

}  // namespace trimlog
