#include <gtest/gtest.h>

#include <QApplication>

// Window tests need an application object before the first widget.
int main(int argc, char **argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Also when the tests are only listed, on a machine without a display.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
