#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace trimlog {

/// The control of a window by its name. A wrong name fails the test and lists what is there; never returns null, so
/// that one wrong name does not take the other tests along.
template <typename Control>
Control &Find(QWidget &window, const QString &name) {
  if (auto *found = window.findChild<Control *>(name)) return *found;
  QStringList names;
  for (const QObject *child : window.findChildren<QWidget *>()) {
    if (!child->objectName().isEmpty() && !child->objectName().startsWith(QStringLiteral("qt_"))) {
      names.append(child->objectName());
    }
  }
  ADD_FAILURE() << "No control " << name.toStdString() << " of this kind among " << names.join(u' ').toStdString();
  return *new Control(&window);
}

/// Acts on the next modal window once it stands, and closes it when the act did not: a test never hangs in exec().
inline void WhenModal(const std::function<void(QWidget &window)> &act) {
  QTimer::singleShot(0, qApp, [act] {
    QWidget *window = QApplication::activeModalWidget();
    if (!window) {
      ADD_FAILURE() << "No modal window came";
      return;
    }
    act(*window);
    if (window == QApplication::activeModalWidget() && window->isVisible()) window->close();
  });
}

}  // namespace trimlog
