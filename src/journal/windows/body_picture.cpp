#include "journal/windows/body_picture.h"

#include <QPainter>

#include "core/windows/controls/theme.h"
#include "journal/day/measurements.h"

namespace trimlog {

namespace {

QColor Mixed(const QColor &one, const QColor &other, double share) {
  const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
  return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()));
}

/// The small strokes of a tape, across its band.
void DrawTapeStrokes(QPainter &painter, const QPainterPath &band, const QColor &color) {
  painter.save();
  painter.setClipPath(band);
  painter.setPen(QPen(color, 0.4));
  const QRectF place = band.boundingRect();
  for (double x = place.left() + 1.2; x < place.right(); x += 2.4) {
    painter.drawLine(QPointF(x, place.top()), QPointF(x, place.bottom() - place.height() * 0.35));
  }
  painter.restore();
}

}  // namespace

BodyPicture::BodyPicture(QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picBody"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  ShowField(std::nullopt);
}

void BodyPicture::ShowGender(bool male) {
  if (male == male_) return;
  male_ = male;
  shape_ = MakeBodyShape(male);
  update();
}

void BodyPicture::ShowField(std::optional<std::size_t> field) {
  field_ = field;
  setAccessibleName(field ? QStringLiteral("Picture: where the %1 is measured")
                                .arg(QString::fromLatin1(measurementFields.at(*field).name).toLower())
                          : QStringLiteral("Picture of a body"));
  update();
}

QSize BodyPicture::sizeHint() const {
  const int line = fontMetrics().lineSpacing();
  return {line * 8, line * 19};
}

QSize BodyPicture::minimumSizeHint() const { return sizeHint() / 2; }

void BodyPicture::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF room = BodyShapeBounds();
  const double scale = std::min(width() / room.width(), height() / room.height());
  painter.translate(width() / 2.0, (height() - room.height() * scale) / 2);
  painter.scale(scale, scale);

  const QColor back = palette().color(QPalette::Window);
  const QColor ink = palette().color(QPalette::WindowText);
  const QColor accent = palette().color(QPalette::Highlight);
  QLinearGradient body(QPointF(room.left(), 0), QPointF(room.right(), 0));
  body.setColorAt(0, Mixed(back, ink, 0.14));
  body.setColorAt(0.55, Mixed(back, ink, 0.2));
  body.setColorAt(1, Mixed(back, ink, 0.34));
  painter.setPen(QPen(Mixed(back, ink, 0.5), 0.7));
  painter.setBrush(body);
  painter.drawPath(shape_.outline);
  if (!field_) return;
  const QPainterPath band = MeasuredBand(shape_, male_, *field_);
  const bool tape = *field_ != bodyFatField;
  QColor fill = accent;
  if (!tape) fill.setAlphaF(0.45F);
  painter.setPen(QPen(accent.darker(130), 0.6));
  painter.setBrush(fill);
  painter.drawPath(band);
  if (tape) DrawTapeStrokes(painter, band, ContrastText(accent));
}

}  // namespace trimlog
