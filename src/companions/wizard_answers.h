#pragma once

#include <QDate>
#include <QList>
#include <QLocale>
#include <QString>
#include <optional>

namespace trimlog {

/// What a person has answered so far. Numbers are in the unit system chosen; going back and forth keeps them.
struct WizardAnswers {
  QString PersonName;
  int UomID = 1;
  double height1 = 0;  ///< feet or metres
  double height2 = 0;  ///< inches or centimetres
  QDate birthDate;
  bool genderMale = false;
  double startingWeight = 0;
  QDate startingDate;
  double goal = 0;
  QString diet = QStringLiteral("100");  ///< key of a diet plan
  int nutrientID = 1;                    ///< the most important nutrient, for the customized plan
  quint32 backColor = 16769216;          ///< blue-green-red byte order
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

/// Why a step's answers cannot be kept, and which field to go back to.
enum class WizardField { Height1, Height2, BirthDate, StartingWeight, Goal };
struct WizardComplaint {
  WizardField field;
  QString title;
  QString text;
};
/// Heights beyond any person's and birth dates in the future or the distant past. A height of 0 means "not told".
std::optional<WizardComplaint> CheckProfileAnswers(const WizardAnswers &answers, const QDate &today);
/// The weight has to be one that the calendar takes, and the goal no larger than that. A goal of 0 is no complaint.
std::optional<WizardComplaint> CheckWeightAnswers(const WizardAnswers &answers);

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
