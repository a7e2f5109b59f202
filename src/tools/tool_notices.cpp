#include "tools/tool_notices.h"

namespace trimlog {

QString MedicalDisclaimerText() {
  return QStringLiteral(
      "The results calculated in these tools are based on well-known formulas for your BMI, BMR, and Body Fat "
      "percentage.  Any additional information that we may offer is designed to help you make informed decisions "
      "about your health and is not a substitute for medical attention.  Since everyone's body is unique, your "
      "doctor can help you figure out the ideal weight, caloric needs, and body fat for you.");
}

Box SampleProfileNotice() {
  return {
      QStringLiteral("Sample Profile Loaded"),
      QStringLiteral(
          "Since a sample profile is currently loaded, the goal and starting weights match the sample profile.  If "
          "you are not currently using the Interactive Tutorial, please load your own profile from the Profiles menu "
          "to get started.\n\nIf you are currently using the Interactive Tutorial, please take some time to "
          "experiment with this Planner now, and then come back when the tutorial is complete."),
      BoxIcon::Information};
}

Box StartingWeightQuestion(const std::function<void()> &help) {
  Box box{QStringLiteral("Plan Feature Unavailable"),
          QStringLiteral(
              "To use this feature, you need to have a starting weight recorded in the Data Calendar.  Would you "
              "like to do this now?"),
          BoxIcon::Question,
          {BoxButton::Yes, BoxButton::No},
          BoxButton::Yes};
  box.help = help;
  return box;
}

Box GenderAndBirthDateQuestion() {
  return {
      QStringLiteral("Gender and Birth Date Required"),
      QStringLiteral("Some of these tools require that you have entered your Gender and Birth Date into your Profile "
                     "setup.  Would you like to do this now?"),
      BoxIcon::Question,
      {BoxButton::Yes, BoxButton::No},
      BoxButton::Yes};
}

Box PrintResultsQuestion() {
  return {
      QStringLiteral("Print Results?"),
      QStringLiteral(
          "Print the currently displayed results to your default printer?\n\nNote: After clicking OK, there will be "
          "a momentary delay while your printer processes the data, and then the page will be printed.  This is "
          "completely normal."),
      BoxIcon::Question,
      {BoxButton::Ok, BoxButton::Cancel},
      BoxButton::Ok};
}

}  // namespace trimlog
