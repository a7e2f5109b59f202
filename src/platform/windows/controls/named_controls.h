#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QList>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>

class QHBoxLayout;
class QLineEdit;

namespace trimlog {

class NumberField;

// The small controls of which pages and dialogs are made: named, added to their layout, with a tool tip where one
// helps.

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
  button->setAutoDefault(false);  // Enter belongs to the default button, wherever the focus is
  return button;
}

/// A line of text that never is markup and never breaks. It has no parent before it stands in a layout.
QLabel *MakeLabel(const QString &name, const QString &text);
QLabel *AddLabel(QLayout *layout, const QString &name, const QString &text);
/// A line of explanation that breaks where it must.
QLabel *AddNote(QLayout *layout, const QString &name, const QString &text);
/// A title above what belongs to it.
QLabel *AddHeading(QLayout *layout, const QString &name, const QString &text);
void MakeBold(QWidget *control);

QHBoxLayout *AddRow(QLayout *layout);
/// A field as wide as numbers are. `spoken` is what a screen reader says.
NumberField *AddNumber(QLayout *layout, const QString &name, const QString &spoken, const QLocale &locale);
/// The width of a field for so many digits.
int FieldWidth(const QLineEdit *field, int characters);

/// Of these options one is chosen at a time. Tab goes to the chosen one, the arrows to the others.
void GroupOptions(QWidget *owner, const QList<QRadioButton *> &options);
/// Gives options one below the other the same width, so that what stands behind them lines up.
void AlignOptions(const QList<QRadioButton *> &options);

/// What a screen reader says of a control that has no label of its own to be seen: where a list is told by its column
/// and its row, or by its place. (A list is never told by its accessible name, only by a label that it belongs to.)
void SpeakAs(QWidget *control, const QString &text);

}  // namespace trimlog
