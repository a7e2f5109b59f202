#include "core/windows/controls/colour_combo.h"

#include <QPainter>

#include "core/windows/controls/theme.h"

namespace trimlog {

namespace {

QIcon Swatch(const QColor &colour, const QSize &size, qreal scale, const QColor &frame) {
  QPixmap picture(size * scale);
  picture.setDevicePixelRatio(scale);
  picture.fill(colour);
  QPainter painter(&picture);
  painter.setPen(frame);
  painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
  return QIcon(picture);
}

}  // namespace

ColourCombo::ColourCombo(const QString &name, const QString &spokenName, const QList<NamedColour> &colours,
                         QWidget *parent)
    : QComboBox(parent) {
  setObjectName(name);
  setAccessibleName(spokenName);
  const int height = fontMetrics().height();
  setIconSize(QSize(height * 2, height));
  for (const NamedColour &colour : colours) AddColour(colour);
}

void ColourCombo::AddColour(const NamedColour &colour) {
  addItem(Swatch(ColorFromBgr(colour.colour), iconSize(), devicePixelRatioF(), palette().color(QPalette::Mid)),
          colour.name, colour.colour);
}

void ColourCombo::SetColour(quint32 colour) {
  if (findData(colour) < 0) AddColour({QStringLiteral("Custom"), colour});
  setCurrentIndex(findData(colour));
}

quint32 ColourCombo::Colour() const { return currentData().toUInt(); }

}  // namespace trimlog
