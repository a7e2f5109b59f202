#include "companions/wizard_plan.h"

#include "platform/error.h"

namespace trimlog {

WizardPlan::WizardPlan(WizardMode mode, bool manyColors) : mode_(mode) {
  if (!IsFirstRun()) {
    steps_ = {WizardStep::Profile, WizardStep::WeightAndDiet};
    return;
  }
  steps_ = {WizardStep::Introduction, WizardStep::Profile, WizardStep::WeightAndDiet, WizardStep::Nutrients};
  if (manyColors) steps_.append(WizardStep::Colors);
}

WizardStep WizardPlan::StepAt(int number) const {
  if (number < 1 || number > WizardSteps()) {
    throw Error(error_number::outOfBounds, QStringLiteral("Internal Wizard Error"));
  }
  return steps_[number - 1];
}

QString WizardPlan::TitleOf(int number) const {
  QString title;
  switch (StepAt(number)) {
    case WizardStep::Introduction:
      title = QStringLiteral("Introduction to this Wizard");
      break;
    case WizardStep::Profile:
      title = QStringLiteral("Your Profile Information");
      break;
    case WizardStep::WeightAndDiet:
      title =
          IsFirstRun() ? QStringLiteral("Your Weight and Diet Information") : QStringLiteral("Your Weight Information");
      break;
    case WizardStep::Nutrients:
      title = QStringLiteral("Your Nutrient Selections");
      break;
    case WizardStep::Colors:
      title = QStringLiteral("Your Color Scheme");
      break;
  }
  return title + QStringLiteral(" (Step %1 of %2)").arg(number).arg(WizardSteps());
}

QString WizardPlan::NameOf(int number) const {
  switch (StepAt(number)) {
    case WizardStep::Introduction:
      return QStringLiteral("Introduction");
    case WizardStep::Profile:
      return QStringLiteral("Profile");
    case WizardStep::WeightAndDiet:
      return IsFirstRun() ? QStringLiteral("Weight and diet") : QStringLiteral("Weight");
    case WizardStep::Nutrients:
      return QStringLiteral("Nutrients");
    case WizardStep::Colors:
      return QStringLiteral("Color scheme");
  }
  return {};
}

QString WizardPlan::NextCaption(int number) const {
  return number == WizardSteps() ? QStringLiteral("&Finish") : QStringLiteral("&Next");
}

}  // namespace trimlog
