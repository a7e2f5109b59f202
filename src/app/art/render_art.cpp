// Build-time tool: draws one SVG file as pixels. usage: render_art IN.svg OUT.png WIDTH HEIGHT
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv) {
  if (argc != 5) return 2;
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) return 1;
  QImage pixels(QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toInt(), QImage::Format_ARGB32_Premultiplied);
  pixels.fill(Qt::transparent);
  {
    QPainter painter(&pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
  }
  return pixels.save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}
