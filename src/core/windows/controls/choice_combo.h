#pragma once

#include <QComboBox>
#include <QList>

#include "core/settings/options.h"

namespace trimlog {

/// A list whose entries stand for whole-number values.
class ChoiceCombo : public QComboBox {
  Q_OBJECT
 public:
  ChoiceCombo(const QString &name, const QString &spokenName, QWidget *parent);

  void SetChoices(const QList<OptionChoice> &choices);
  /// Shows a value. One that the list does not know gets an entry of its own, so that it is never silently replaced.
  void SetValue(int value);
  int ChosenValue() const;
};

}  // namespace trimlog
