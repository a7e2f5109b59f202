#pragma once

#include <QList>
#include <QLocale>
#include <QString>

class QHBoxLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace trimlog {

class NumberField;

// The controls of which the calculators' panels are made: named, added to their layout.

QHBoxLayout *AddRow(QLayout *layout);
/// A line of text that never is markup and never breaks.
QLabel *AddLabel(QLayout *layout, const QString &name, const QString &text);
/// The title of a panel.
QLabel *AddHeading(QLayout *layout, const QString &name, const QString &text);
QLabel *AddStepCaption(QLayout *layout, const QString &text);
/// A framed text of at least some lines that breaks where it must and can be selected and copied. Takes the room that
/// is left.
QLabel *AddResultText(QLayout *layout, const QString &name, const QString &spokenName, int lines);
/// A field as wide as numbers are.
NumberField *AddNumber(QLayout *layout, const QString &name, const QString &spokenName, const QLocale &locale);
int FieldWidth(const QLineEdit *field, int characters);

/// Of these options one is chosen at a time.
void GroupOptions(QWidget *owner, const QList<QRadioButton *> &options);
/// Gives options one below the other the same width, so that what stands behind them lines up.
void AlignOptions(const QList<QRadioButton *> &options);

}  // namespace trimlog
