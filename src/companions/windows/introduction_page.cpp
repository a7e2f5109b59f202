#include "companions/windows/introduction_page.h"

#include <QVBoxLayout>

#include "platform/windows/controls/named_controls.h"
#include "platform/windows/controls/spacing.h"

namespace trimlog {

IntroductionPage::IntroductionPage(bool asksForColors, QWidget *parent) : WizardPage(parent) {
  QVBoxLayout *layout = MakeColumn();
  layout->setSpacing(spacing::around);
  AddNote(
      layout, QStringLiteral("lblWelcome"),
      QStringLiteral("Welcome to Trimlog Pro.  This wizard sets the program up for you; it takes a minute or two."));
  QString steps = QStringLiteral(
      "It will ask for:\n\n"
      "   \u2022  your name, height, birth date and gender\n"
      "   \u2022  your starting weight, your goal and your diet plan\n"
      "   \u2022  the nutrients that you would like to keep an eye on");
  if (asksForColors) steps += QStringLiteral("\n   \u2022  the color scheme that you like best");
  AddNote(layout, QStringLiteral("lblSteps"), steps);
  AddNote(
      layout, QStringLiteral("lblLater"),
      QStringLiteral("Everything can be changed later.  To look around first, click <Skip Wizard>: a sample profile "
                     "is loaded, and the wizard comes back the next time."));
  AddNote(layout, QStringLiteral("lblNext"), QStringLiteral("Click <Next> or press Enter to begin."));
  layout->addStretch();
}

}  // namespace trimlog
