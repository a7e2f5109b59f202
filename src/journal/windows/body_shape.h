#pragma once

#include <QPainterPath>
#include <QRectF>
#include <optional>

namespace trimlog {

/// A standing figure as outlines, in a room of its own: 200 units high, x 0 in the middle.
struct BodyShape {
  QPainterPath outline;  ///< the whole figure
  QPainterPath torso;
  QPainterPath arm;  ///< the one that is measured
  QPainterPath leg;
};
BodyShape MakeBodyShape(bool male);
/// The room that either figure stands in.
QRectF BodyShapeBounds();

/// Where a tape lies for a measurement (an index of measurementFields); the body fat marks the belly.
QPainterPath MeasuredBand(const BodyShape &shape, bool male, std::size_t field);

}  // namespace trimlog
