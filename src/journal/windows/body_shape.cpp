#include "journal/windows/body_shape.h"

#include <QList>
#include <algorithm>
#include <array>

#include "journal/day/measurements.h"

namespace trimlog {

namespace {

using Points = QList<QPointF>;

/// One stretch of a limb: its middle and half its width there.
struct LimbPoint {
  QPointF middle;
  double half;
};

/// A closed curve through all points (Catmull-Rom, as cubic pieces).
QPainterPath CurveThrough(const Points &points) {
  const auto count = points.size();
  const auto at = [&](qsizetype i) { return points[(i + count) % count]; };
  QPainterPath path(points.first());
  for (qsizetype i = 0; i < count; ++i) {
    path.cubicTo(at(i) + (at(i + 1) - at(i - 1)) / 6, at(i + 1) - (at(i + 2) - at(i)) / 6, at(i + 1));
  }
  path.closeSubpath();
  return path;
}

QPainterPath Mirrored(const QPainterPath &path) { return QTransform::fromScale(-1, 1).map(path); }

/// From one side's contour, top to bottom, the whole.
QPainterPath BothSides(const Points &right) {
  Points all = right;
  for (auto point = right.rbegin(); point != right.rend(); ++point) all.append(QPointF(-point->x(), point->y()));
  return CurveThrough(all);
}

QPainterPath Limb(const QList<LimbPoint> &points) {
  Points contour;
  for (const LimbPoint &point : points) contour.append(point.middle + QPointF(point.half, 0));
  for (auto point = points.rbegin(); point != points.rend(); ++point) {
    contour.append(point->middle - QPointF(point->half, 0));
  }
  return CurveThrough(contour);
}

QPainterPath Ellipse(QPointF middle, double x, double y) {
  QPainterPath path;
  path.addEllipse(middle, x, y);
  return path;
}

BodyShape MaleShape() {
  BodyShape shape;
  shape.torso = BothSides({{5.4, 24},
                           {5.8, 31},
                           {12, 35.5},
                           {20, 38.5},
                           {23.5, 44},
                           {20.5, 54},
                           {18.2, 66},
                           {16.6, 78},
                           {17.2, 90},
                           {18, 99},
                           {14, 107},
                           {5, 110}});
  shape.arm = Limb({{{21.6, 39.5}, 3.5},
                    {{23.6, 47}, 6},
                    {{25.8, 60}, 5.4},
                    {{28, 72}, 4.4},
                    {{29.6, 80}, 4.7},
                    {{31.8, 92}, 3.5},
                    {{33, 99}, 3},
                    {{34.2, 106}, 3.8},
                    {{34.6, 112}, 2.4}});
  shape.leg = Limb({{{9.4, 97}, 8.4},
                    {{9.6, 110}, 9.2},
                    {{9.8, 124}, 8},
                    {{9.4, 140}, 6},
                    {{9.4, 148}, 5.3},
                    {{9.8, 160}, 6.1},
                    {{9.4, 174}, 4.4},
                    {{9.2, 187}, 3.2},
                    {{10.6, 193}, 4.6},
                    {{11.6, 197}, 5.6}});
  shape.outline = Ellipse({0, 15}, 9.2, 12);
  return shape;
}

BodyShape FemaleShape() {
  BodyShape shape;
  shape.torso = BothSides({{4.3, 25},
                           {4.6, 32},
                           {9.5, 36.5},
                           {16.5, 39.5},
                           {19.2, 44.5},
                           {17, 52},
                           {17.2, 58},
                           {14.2, 67},
                           {12.8, 76},
                           {15.6, 87},
                           {18.8, 98},
                           {16, 107},
                           {5, 110}});
  shape.arm = Limb({{{17.8, 40.5}, 3},
                    {{19.6, 47}, 4.9},
                    {{21.8, 60}, 4.2},
                    {{24.2, 72}, 3.5},
                    {{26, 80}, 3.8},
                    {{28.6, 92}, 2.9},
                    {{30, 98.5}, 2.5},
                    {{31.2, 105}, 3.3},
                    {{31.6, 111}, 2}});
  shape.leg = Limb({{{9.6, 97}, 8.6},
                    {{9.8, 109}, 9.2},
                    {{9.6, 124}, 7.8},
                    {{8.6, 140}, 5.6},
                    {{8.4, 148}, 4.9},
                    {{8.8, 160}, 5.6},
                    {{8.4, 174}, 3.9},
                    {{8.2, 188}, 2.8},
                    {{9.2, 193.5}, 3.9},
                    {{9.8, 197}, 4.8}});
  // The hair falls to the shoulders, behind the face.
  shape.outline =
      Ellipse({0, 16}, 8.6, 11.4)
          .united(BothSides({{3.5, 2.4}, {8.6, 5.6}, {10.6, 13}, {10.6, 21}, {11.6, 27.5}, {9.4, 31}, {4, 29}}));
  return shape;
}

/// Top, bottom, middle and half the width of a tape's place.
struct Tape {
  double top;
  double bottom;
  double middle;
  double half;
};

constexpr std::array<Tape, measurementFields.size() - 1> maleTapes = {{{50, 57, 0, 24},
                                                                       {75, 82, 0, 20},
                                                                       {94, 101, 0, 21},
                                                                       {53, 59.5, 25.2, 8},
                                                                       {78, 84, 30, 7},
                                                                       {114, 121, 9.7, 11},
                                                                       {156, 162.5, 9.7, 8}}};
constexpr std::array<Tape, measurementFields.size() - 1> femaleTapes = {{{51, 58, 0, 20},
                                                                         {72, 79, 0, 17},
                                                                         {94, 101, 0, 22},
                                                                         {53, 59.5, 21.2, 7},
                                                                         {78, 84, 26.4, 6},
                                                                         {113, 120, 9.7, 11},
                                                                         {156, 162.5, 8.7, 8}}};

/// A tape around something round is seen as a bow.
QPainterPath Bow(const Tape &tape) {
  const double sag = tape.half * 0.14;
  QPainterPath bow(QPointF(tape.middle - tape.half, tape.top));
  bow.quadTo(QPointF(tape.middle, tape.top + 2 * sag), QPointF(tape.middle + tape.half, tape.top));
  bow.lineTo(tape.middle + tape.half, tape.bottom);
  bow.quadTo(QPointF(tape.middle, tape.bottom + 2 * sag), QPointF(tape.middle - tape.half, tape.bottom));
  bow.closeSubpath();
  return bow;
}

}  // namespace

BodyShape MakeBodyShape(bool male) {
  BodyShape shape = male ? MaleShape() : FemaleShape();
  for (const QPainterPath &part : {shape.torso, shape.arm, Mirrored(shape.arm), shape.leg, Mirrored(shape.leg)}) {
    shape.outline = shape.outline.united(part);
  }
  shape.outline = shape.outline.simplified();
  return shape;
}

QRectF BodyShapeBounds() { return {-42, 0, 84, 206}; }

QPainterPath MeasuredBand(const BodyShape &shape, bool male, std::size_t field) {
  // Where it gathers first.
  if (field == bodyFatField) return Ellipse({0, 82}, 40, 24).intersected(shape.torso);
  constexpr std::size_t firstOfArm = 3;
  constexpr std::size_t firstOfLeg = 5;
  const QPainterPath around = field >= firstOfLeg   ? shape.leg
                              : field >= firstOfArm ? shape.arm
                                                    : shape.torso.united(shape.leg).united(Mirrored(shape.leg));
  return Bow((male ? maleTapes : femaleTapes).at(field)).intersected(around);
}

}  // namespace trimlog
