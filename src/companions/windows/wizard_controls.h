#pragma once

#include <QList>
#include <QLocale>
#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;
class QWidget;

namespace trimlog {

class NumberField;

// The controls of which the wizard's pages are made.

inline constexpr int numberCharacters = 8;
inline constexpr int dateCharacters = 12;

/// What a page stands in: as wide as the wizard's title above it.
QVBoxLayout *MakeWizardColumn(QWidget *page);
/// A sentence, and below it the grid that AddWizardRow fills: captions to the left, fields to the right.
QGridLayout *MakeWizardForm(QWidget *page, const QString &sentence);
/// One row: its caption, with the access key of `buddy` where there is one, and what stands behind it.
void AddWizardRow(QGridLayout *grid, const QString &caption, QWidget *buddy, const QList<QWidget *> &controls);
NumberField *AddWizardNumber(const QString &name, const QLocale &locale, QWidget *page);
/// The unit behind a number.
QLabel *AddWizardUnit(const QString &name, QWidget *page);
/// As wide as so many digits.
void FitWizardField(QLineEdit *field, int characters);

}  // namespace trimlog
