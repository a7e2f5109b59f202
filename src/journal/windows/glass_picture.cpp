#include "journal/windows/glass_picture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "core/windows/controls/theme.h"

namespace trimlog {

namespace {

constexpr double fullGlasses = 8;
constexpr double lift = 0.1;  ///< how much narrower the foot is than the rim, a side

/// The inside of the glass from its foot up to a share of its height.
QPainterPath Filled(const QRectF &room, double share) {
  const double inset = room.width() * lift;
  const double top = room.bottom() - room.height() * share;
  const double side = inset * (1 - share);
  QPainterPath path(QPointF(room.left() + side, top));
  path.lineTo(room.right() - side, top);
  path.lineTo(room.right() - inset, room.bottom());
  path.lineTo(room.left() + inset, room.bottom());
  path.closeSubpath();
  return path;
}

}  // namespace

GlassPicture::GlassPicture(QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picWater"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void GlassPicture::ShowGlasses(double glasses) {
  glasses_ = glasses;
  update();
}

QSize GlassPicture::sizeHint() const {
  const int line = fontMetrics().lineSpacing();
  return {line + line / 2, 2 * line};
}

void GlassPicture::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!isEnabled()) painter.setOpacity(0.4);
  const QRectF room = QRectF(rect()).adjusted(2, 2, -2, -2);
  const bool dark = IsDark(palette());
  const QColor water = dark ? QColor(70, 150, 215) : QColor(90, 170, 230);
  const double share = std::clamp(glasses_ / fullGlasses, 0.0, 1.0) * 0.9;
  if (share > 0) {
    QLinearGradient depth(room.topLeft(), room.bottomLeft());
    depth.setColorAt(0, water.lighter(125));
    depth.setColorAt(1, water.darker(115));
    painter.fillPath(Filled(room, share), depth);
  }
  QColor edge = palette().color(QPalette::WindowText);
  edge.setAlphaF(0.65F);
  painter.setPen(QPen(edge, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPainterPath glass = Filled(room, 1);
  QPainterPath walls(glass.elementAt(0));  // open at the rim
  walls.lineTo(glass.elementAt(3));
  walls.lineTo(glass.elementAt(2));
  walls.lineTo(glass.elementAt(1));
  painter.drawPath(walls);
}

}  // namespace trimlog
