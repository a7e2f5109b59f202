// Build-time tool: draws one SVG file as pixels. usage: render_art IN.svg OUT.png WIDTH HEIGHT [quick]
// "quick" is for a picture without holes that is read at every start: no alpha, no compression to undo.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv) {
  if (argc != 5 && argc != 6) return 2;
  const bool quick = argc == 6;
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) return 1;
  QImage pixels(QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toInt(),
                quick ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
  pixels.fill(quick ? Qt::white : Qt::transparent);
  {
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
  }
  return pixels.save(QString::fromLocal8Bit(argv[2]), "PNG", quick ? 100 : -1) ? 0 : 1;
}
