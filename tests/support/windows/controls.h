#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <stdexcept>

namespace trimlog {

/// The control of a window by its name. A wrong name ends the test and lists what is there.
template <typename Control>
Control &Find(QWidget &window, const QString &name) {
  if (auto *found = window.findChild<Control *>(name)) return *found;
  QStringList names;
  for (const QObject *child : window.findChildren<QWidget *>()) {
    if (!child->objectName().isEmpty() && !child->objectName().startsWith("qt_")) {
      names.append(child->objectName());
    }
  }
  throw std::runtime_error("No control " + name.toStdString() + " of this kind among " +
                           names.join(u' ').toStdString());
}

constexpr int patience = 30000;  ///< milliseconds; only a failure takes that long

/// A button pressed by its access key stays down for a moment before it acts: waits until it has acted.
inline void WaitForPressedButtons() {
  const auto down = [](const QWidget *widget) {
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button && button->isDown();
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::ranges::none_of(QApplication::allWidgets(), down); }, patience));
}

/// Acts on the next modal window once it stands, and closes it when the act did not: a test never hangs in exec(). Some
/// come a few events later than what opens them.
inline void WhenModal(const std::function<void(QWidget &window)> &act, int turns = 50) {
  QTimer::singleShot(0, qApp, [act, turns] {
    QWidget *window = QApplication::activeModalWidget();
    if (!window && turns > 0) return WhenModal(act, turns - 1);
    if (!window) {
      ADD_FAILURE() << "No modal window came";
      return;
    }
    try {
      act(*window);
    } catch (const std::exception &error) {  // must not travel through the event loop
      ADD_FAILURE() << error.what();
    }
    if (window == QApplication::activeModalWidget() && window->isVisible()) window->close();
  });
}

}  // namespace trimlog
