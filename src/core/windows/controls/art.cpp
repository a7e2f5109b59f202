#include "core/windows/controls/art.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QStyle>
#include <QStyleOption>

namespace trimlog {

namespace {

constexpr int drawnSizes[] = {16, 24, 32, 48, 64, 128};

QString PixelFile(const QString &name, const QString &suffix) {
  return QStringLiteral(":/art/%1_%2.raw").arg(name, suffix);
}

/// Bare pixels. A coded picture would make the first one that is shown look through the machine's image plugins.
QPixmap ReadPixels(const QString &file, const QSize &size, QImage::Format format) {
  const QResource resource(file);
  const bool asItLies = resource.compressionAlgorithm() == QResource::NoCompression;
  const QByteArray unpacked = asItLies ? QByteArray() : resource.uncompressedData();
  if ((asItLies ? resource.size() : unpacked.size()) != qint64{size.width()} * size.height() * 4) return {};
  const auto *pixels = asItLies ? resource.data() : reinterpret_cast<const uchar *>(unpacked.constData());
  // A picture may point at what stays where it is; what was unpacked goes, so that the pixmap needs its own.
  const QImage image(pixels, size.width(), size.height(), format);
  return QPixmap::fromImage(asItLies ? image : image.copy());
}

/// Reads an icon when it is first painted.
QPixmap ReadIcon(const QString &name, int side) {
  const QString file = PixelFile(name, QString::number(side));
  QPixmap pixmap;
  if (QPixmapCache::find(file, &pixmap)) return pixmap;
  pixmap = ReadPixels(file, {side, side}, QImage::Format_ARGB32_Premultiplied);
  QPixmapCache::insert(file, pixmap);
  return pixmap;
}

class ArtEngine final : public QIconEngine {
 public:
  explicit ArtEngine(const QString &name) : name_(name) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state));
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override {
    const int side = std::min(size.width(), size.height());
    const int *fitting = std::lower_bound(std::begin(drawnSizes), std::end(drawnSizes), side);
    if (fitting == std::end(drawnSizes)) --fitting;
    QPixmap picture = ReadIcon(name_, *fitting);
    if (*fitting != side && !picture.isNull()) {
      picture = picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    if (mode == QIcon::Normal || picture.isNull()) return picture;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, picture, &option);
  }

  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    QList<QSize> sizes;
    for (const int side : drawnSizes) sizes.append({side, side});
    return sizes;
  }
  QIconEngine *clone() const override { return new ArtEngine(name_); }
  bool isNull() override { return !QFile::exists(PixelFile(name_, QStringLiteral("16"))); }

 private:
  const QString name_;
};

}  // namespace

QIcon ArtIcon(const QString &name) { return QIcon(new ArtEngine(name)); }

QPixmap SplashPicture(qreal devicePixelRatio) {
  const int scale = devicePixelRatio > 1 ? 2 : 1;
  const QString file = PixelFile(QStringLiteral("splash"), QStringLiteral("%1x").arg(scale));
  QPixmap picture = ReadPixels(file, QSize(480, 270) * scale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale);
  return picture;
}

}  // namespace trimlog
