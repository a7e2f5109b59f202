#pragma once

#include <QFont>

class QString;

namespace trimlog {

/// The font, or the largest smaller one, down to six tenths of its size, in which the text is no wider than `width`
/// pixels.
QFont FittingFont(const QFont &font, const QString &text, int width);

}  // namespace trimlog
