#pragma once

#include <QDate>
#include <QList>
#include <QLocale>
#include <QString>
#include <optional>

#include "core/profiles/person.h"

namespace trimlog {

/// What a person has answered so far. Numbers are in the unit system chosen; going back and forth keeps them.
struct WizardAnswers {
  Person person;
  int UomID = 1;
  double startingWeight = 0;
  QDate startingDate;
  QString diet = QStringLiteral("100");  ///< key of a diet plan
  int nutrientID = 1;                    ///< the most important nutrient, for the customized plan
};

// What a field shows after it was left: mended without a message, so that every step can be passed.

/// A number below 1, or none, becomes "0". Anything else stays as typed.
QString RepairedNumber(const QString &text, const QLocale &locale);
/// The second height field: as above, and at most "11" inches in the foot system.
QString RepairedHeight2(const QString &text, int UomID, const QLocale &locale);
/// A text that is no date becomes the date 30 years before `today`.
QString RepairedBirthDate(const QString &text, const QDate &today, const QLocale &locale);
/// A text that is no date becomes `today`.
QString RepairedStartingDate(const QString &text, const QDate &today, const QLocale &locale);
QString RepairedPersonName(const QString &text);

/// Why the weight step cannot be left: the weight has to be one that the calendar takes, and the goal no larger than
/// that. A goal of 0 is no complaint: ConfirmGoal asks.
enum class WeightStepField { StartingWeight, Goal };
struct WeightComplaint {
  WeightStepField field = WeightStepField::StartingWeight;
  QString title;
  QString text;
};
std::optional<WeightComplaint> CheckWeightAnswers(const WizardAnswers &answers);

/// The unit system that the wizard proposes on its first run: the one set or, where that is the one every new store
/// begins with, the one of the person's country.
int ProposedUomID(int UomID, const QLocale &locale);

/// A colour scheme that the wizard offers; `option` numbers its option button.
struct WizardColor {
  int option = 0;
  QString caption;
  quint32 colour = 0;  ///< blue-green-red byte order
};
/// In the order offered, the default first.
const QList<WizardColor> &WizardColors();

/// The advice of "Tell Me...": the weights of an index of 21 to 23 at the entered height; where that is no person's
/// height, a request to enter it.
QString HealthyWeightText(const WizardAnswers &answers, const QString &uomDisplay);

}  // namespace trimlog
