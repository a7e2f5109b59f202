#pragma once

#include <QToolButton>
#include <functional>

#include "core/session/session.h"

namespace trimlog {

/// A picture above a caption, outlined while the mouse or the keyboard is on it. Painted on the panel's own colour, so
/// that it stays readable whatever scheme the profile has.
class NavigationButton : public QToolButton {
  Q_OBJECT
 public:
  using QToolButton::QToolButton;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// Marks the button whose content window is shown.
  void SetCurrent(bool current);

 Q_SIGNALS:
  void MousePressed();  ///< before anything else of the press happens

 protected:
  void mousePressEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  bool current_ = false;
};

/// The navigation panel at the left of the main window.
class frmMain : public QWidget {
  Q_OBJECT
 public:
  explicit frmMain(Session &session, QWidget *parent = nullptr);
  void Refresh();
  /// What a button does; a reason why it cannot disables it and stands in its tip.
  void SetCommand(const QString &buttonName, const std::function<void()> &command, const QString &whyNot);
  /// Marks the button of the content window that is shown.
  void ShowCurrent(const QString &buttonName);

 private:
  NavigationButton *Button(const QString &name) const;

  Session &session_;
};

}  // namespace trimlog
