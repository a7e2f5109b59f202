#pragma once

#include <QRect>

#include "core/settings/settings.h"

class QWidget;

namespace trimlog {

/// Moves a window to a kept place, in twips, no smaller than its minimum; onto a screen when it lies outside all of
/// them, because the monitor that it stood on is gone.
void PutInPlace(QWidget &window, const WindowPlace &place);
/// A place on the screen as it is kept.
WindowPlace PlaceOf(const QRect &pixels);

}  // namespace trimlog
