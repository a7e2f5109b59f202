#include <QApplication>

#include "core/windows/controls/theme_style.h"
#include "platform/windows/machine/font_warmth.h"
#include "platform/windows/machine/qt_boxes.h"
#include "platform/windows/machine/qt_machine.h"
#include "platform/windows/printing/system_printing.h"
#include "program.h"

int main(int argc, char **argv) {
  using namespace trimlog;
  const FontWarmth warmth;
  QApplication application(argc, argv);
  QApplication::setStyle(new ThemeStyle);
  QApplication::setApplicationName(QStringLiteral("trimlog"));
  // Only closing the main window ends the program: a sign-in window or a box before it must not.
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDesktopFileName(QStringLiteral("trimlog"));

  const std::unique_ptr<SettingsStore> store = OpenUserSettings();
  SystemClock clock;
  QtMachine machine;
  QtBoxes boxes;
  const std::unique_ptr<PageOutput> pages = SystemPageOutput();
  SystemPrinting printing(boxes, *pages);
  Session session({QApplication::applicationDirPath(), *store, clock, machine, boxes, printing, QLocale()});
  const std::unique_ptr<OperatingSystem> system = RunningSystem();
  Program program(session, *system);
  return program.Start() ? QApplication::exec() : 0;
}
