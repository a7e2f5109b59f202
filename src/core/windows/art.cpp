#include "core/windows/art.h"

#include <QFile>

namespace trimlog {

namespace {

QString PixelFile(const QString &name, int size) { return QStringLiteral(":/art/%1_%2.png").arg(name).arg(size); }

}  // namespace

QIcon ArtIcon(const QString &name) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    const QString file = PixelFile(name, size);
    if (QFile::exists(file)) icon.addFile(file, QSize(size, size));
  }
  return icon;
}

QPixmap ArtPixmap(const QString &name, qreal devicePixelRatio) {
  QPixmap pixmap(
      QStringLiteral(":/art/%1_%2.png").arg(name, devicePixelRatio > 1 ? QStringLiteral("2x") : QStringLiteral("1x")));
  if (devicePixelRatio > 1) pixmap.setDevicePixelRatio(2);
  return pixmap;
}

}  // namespace trimlog
