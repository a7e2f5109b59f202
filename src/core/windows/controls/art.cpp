#include "core/windows/controls/art.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QStyle>
#include <QStyleOption>

namespace trimlog {

namespace {

constexpr int drawnSizes[] = {16, 24, 32, 48, 64, 128};

QString PixelFile(const QString &name, const QString &suffix) {
  return QStringLiteral(":/art/%1_%2.png").arg(name, suffix);
}

/// Reads one picture when it is first painted. The format is named outright: guessing it would load every image plugin
/// of the machine.
QPixmap ReadPicture(const QString &file) {
  QPixmap pixmap;
  if (QPixmapCache::find(file, &pixmap)) return pixmap;
  pixmap.load(file, "PNG");
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
    QPixmap picture = ReadPicture(PixelFile(name_, QString::number(*fitting)));
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
  if (devicePixelRatio > 1) {
    QPixmap fine = ReadPicture(PixelFile(QStringLiteral("splash"), QStringLiteral("2x")));
    fine.setDevicePixelRatio(2);
    return fine;
  }
  // Bare pixels, painted from where they lie in the program.
  const QResource pixels(QStringLiteral(":/art/splash_1x.raw"));
  constexpr int width = 480;
  constexpr int height = 270;
  if (pixels.size() != qint64{width} * height * 4) return {};
  return QPixmap::fromImage(QImage(pixels.data(), width, height, QImage::Format_RGB32));
}

}  // namespace trimlog
