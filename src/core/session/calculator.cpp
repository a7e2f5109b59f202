#include "core/session/calculator.h"

#include <QStandardPaths>

namespace trimlog {

QString FindCalculator() {
  for (const char *program : {"calc.exe", "gnome-calculator", "kcalc", "mate-calc", "galculator", "qalculate-gtk",
                              "qalculate-qt", "deepin-calculator", "lxqt-calculator", "speedcrunch", "xcalc"}) {
    const QString path = QStandardPaths::findExecutable(QString::fromLatin1(program));
    if (!path.isEmpty()) return path;
  }
  return {};
}

void StartCalculator(Session &session) {
  const QString calculator = FindCalculator();
  if (!calculator.isEmpty() && session.machine.Start(calculator, {})) return;
  session.boxes.Inform(QStringLiteral("Calculator"), QStringLiteral("The calculator could not be started."));
}

}  // namespace trimlog
