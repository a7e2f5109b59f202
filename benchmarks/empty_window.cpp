// The least that any Qt Widgets program costs: an empty window of the size given in pixels.
#include <QApplication>
#include <QWidget>

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setObjectName(QStringLiteral("empty"));
  window.resize(QString::fromLocal8Bit(argv[1]).toInt(), QString::fromLocal8Bit(argv[2]).toInt());
  window.show();
  return QApplication::exec();
}
