#pragma once

#include <QColor>
#include <array>

#include "core/session/session.h"

namespace trimlog {

/// The colours of the three activity levels and of the three segments of the body-fat bar, in that order: yellow,
/// green, cyan; pure ones where the screen shows no more than 256. All are light: black reads well on them.
std::array<QColor, 3> ToolColours(const Session &session);

/// Gives a panel its colour, text that reads well on it, and grey for what is disabled.
void PaintToolPanel(QWidget *panel, const QColor &background);

/// Disabled labels on the panel are grey, whatever shade the desktop has for them.
void GreyDisabledLabels(QWidget *panel);

}  // namespace trimlog
