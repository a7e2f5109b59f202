#include "core/windows/controls/choice_combo.h"

namespace trimlog {

ChoiceCombo::ChoiceCombo(const QString &name, const QString &spokenName, QWidget *parent) : QComboBox(parent) {
  setObjectName(name);
  setAccessibleName(spokenName);
}

void ChoiceCombo::SetChoices(const QList<OptionChoice> &choices) {
  clear();
  for (const OptionChoice &choice : choices) addItem(choice.text, choice.value);
}

void ChoiceCombo::SetValue(int value) {
  if (findData(value) < 0) addItem(QStringLiteral("Other (%1)").arg(value), value);
  setCurrentIndex(findData(value));
}

int ChoiceCombo::ChosenValue() const { return currentData().toInt(); }

}  // namespace trimlog
