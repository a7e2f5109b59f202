// Build-time tool: draws one SVG file as pixels. usage: render_art IN.svg OUT.png|OUT.raw WIDTH HEIGHT
// A .raw file is bare 32-bit rows without alpha, for a picture without holes that is shown at every start: nothing to
// decode.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv) {
  if (argc != 5) return 2;
  const QString output = QString::fromLocal8Bit(argv[2]);
  const bool raw = output.endsWith(QStringLiteral(".raw"));
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) return 1;
  QImage pixels(QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toInt(),
                raw ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
  pixels.fill(raw ? Qt::white : Qt::transparent);
  {
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
  }
  if (!raw) return pixels.save(output, "PNG") ? 0 : 1;
  QFile file(output);
  return file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char *>(pixels.constBits()),
                                                       pixels.sizeInBytes()) == pixels.sizeInBytes()
             ? 0
             : 1;
}
