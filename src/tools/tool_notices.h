#pragma once

#include <QString>

#include "platform/boxes.h"

namespace trimlog {

// What the calculators say when they open, and before they print.

inline const QString medicalDisclaimerTitle = QStringLiteral("Please Remember...");
QString MedicalDisclaimerText();

Box SampleProfileNotice();
/// `help` is called by the box's Help button.
Box StartingWeightQuestion(const std::function<void()> &help);
Box GenderAndBirthDateQuestion();
Box PrintResultsQuestion();

}  // namespace trimlog
