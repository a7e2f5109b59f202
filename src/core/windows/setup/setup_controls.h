#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>

namespace trimlog {

/// The small controls of which the options pages are made: named, added to their layout, with a tool tip where one
/// helps.

template <typename Button>
Button *AddButton(QLayout *layout, const QString &name, const QString &caption, const QString &tip = {}) {
  auto *button = new Button(caption);
  button->setObjectName(name);
  button->setToolTip(tip);
  layout->addWidget(button);
  return button;
}

inline QCheckBox *AddCheck(QLayout *layout, const QString &name, const QString &caption, const QString &tip = {}) {
  return AddButton<QCheckBox>(layout, name, caption, tip);
}
inline QRadioButton *AddOption(QLayout *layout, const QString &name, const QString &caption, const QString &tip = {}) {
  return AddButton<QRadioButton>(layout, name, caption, tip);
}
inline QPushButton *AddCommand(QLayout *layout, const QString &name, const QString &caption, const QString &tip = {}) {
  auto *button = AddButton<QPushButton>(layout, name, caption, tip);
  button->setAutoDefault(false);  // Enter belongs to OK, wherever the focus is
  return button;
}

/// A line of explanation that breaks where it must.
inline QLabel *AddNote(QLayout *layout, const QString &name, const QString &text) {
  auto *note = new QLabel(text);
  note->setObjectName(name);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  layout->addWidget(note);
  return note;
}

}  // namespace trimlog
