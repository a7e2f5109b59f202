#pragma once

#include <QComboBox>
#include <functional>
#include <vector>

namespace trimlog {

/// A list of things to do that looks like a drop-down list: it shows its prompt, never a choice. Arrow keys open it
/// instead of doing one thing after the other.
class ActionsCombo : public QComboBox {
  Q_OBJECT
 public:
  ActionsCombo(const QString &objectName, const QString &prompt, QWidget *parent);
  /// `whyNot` disables the entry and is its tip.
  void AddAction(const QString &caption, const QString &whyNot, std::function<void()> run);
  /// As wide as the prompt; the list that opens is as wide as its entries.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void showPopup() override;

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  std::vector<std::function<void()>> work_;
};

}  // namespace trimlog
