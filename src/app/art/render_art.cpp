// Build-time tool: draws one SVG file as bare 32-bit pixels, so that there is nothing to decode when it is shown.
// usage: render_art IN.svg OUT.raw WIDTH HEIGHT icon|picture
// An icon has holes (premultiplied alpha), a picture has none.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv) {
  if (argc != 6) return 2;
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) return 1;
  const bool holes = QByteArray(argv[5]) == "icon";
  QImage pixels(QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toInt(),
                holes ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  pixels.fill(holes ? Qt::transparent : Qt::white);
  {
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
  }
  QFile file(QString::fromLocal8Bit(argv[2]));
  return file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char *>(pixels.constBits()),
                                                       pixels.sizeInBytes()) == pixels.sizeInBytes()
             ? 0
             : 1;
}
