#pragma once

#include <QPalette>

namespace trimlog {

/// The colour of words that step back behind the rest. Made of the text's own colour: some desktops have a dark palette
/// and leave the colour of placeholders black.
inline QColor QuietText(const QPalette &palette, QPalette::ColorRole text) {
  QColor quiet = palette.color(text);
  quiet.setAlphaF(0.6F);
  return quiet;
}

}  // namespace trimlog
