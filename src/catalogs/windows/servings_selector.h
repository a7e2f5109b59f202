#pragma once

#include <QFrame>
#include <QLocale>
#include <array>

#include "catalogs/servings_choice.h"

class QPushButton;

namespace trimlog {

class NumberField;

/// The Serving Selector, fraServings: puts the servings of a field together of a fraction and a whole number, by mouse
/// or with the arrow keys. Esc, its button and a click elsewhere close it.
class ServingsSelector : public QFrame {
  Q_OBJECT
 public:
  ServingsSelector(const QLocale &locale, QWidget *parent);

  /// Opens beside a field, with the toggles down that match what stands there.
  void OpenFor(NumberField &field);

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void hideEvent(QHideEvent *event) override;

 private:
  QPushButton *MakeToggle(int toggle);
  void OnPressed(int toggle);
  void ShowToggles();
  QPoint PlaceBeside(const QWidget &field) const;

  const QLocale locale_;
  NumberField *field_ = nullptr;
  std::array<QPushButton *, servingToggleCount> pshServings{};
};

}  // namespace trimlog
