#include "core/start/start_boxes.h"

#include <QDir>

#include "core/session/product.h"
#include "platform/error.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString blankLine = QStringLiteral("\n\n");

QString QuotedDataFile(const Session &session) {
  return u'"' + QDir::toNativeSeparators(session.DataFilePath()) + u'"';
}

void AskForGenderAndBirthDate(Session &session, const std::function<void()> &openSetup) {
  const bool now = session.boxes.Ask(
      QStringLiteral("Gender and Birth Date Required"),
      QStringLiteral(
          "Some of the new features require that you have entered your Gender and Birth Date into your Profile "
          "setup.  Would you like to do this now?"));
  if (!now) {
    session.boxes.Plain(QStringLiteral("Entering Your Gender and Birth Date"),
                        QStringLiteral("When you're ready to enter your Birth Date and Gender, just click the <Setup> "
                                       "button and edit the profiles list."));
  } else if (openSetup) {
    openSetup();
  }
}

void TellOfMealTypesAndBackup(Session &session) {
  session.boxes.Inform(
      QStringLiteral("New Meal Types Added"),
      QStringLiteral("This latest version of Trimlog Pro has added new Meal Types for your Journal.  You now have the "
                     "following Meal Types:") +
          blankLine +
          QStringLiteral("Breakfast, Morning Snack, Lunch, Afternoon Snack, Dinner, Dessert, Late Snack, Drink, "
                         "Supplement") +
          blankLine +
          QStringLiteral(
              "Since the Meal Type of 'Snack' no longer exists, the program has updated your old 'Snack' meal "
              "entries to 'Afternoon Snack'.  If you need to, you can easily change your old meal entries to "
              "something more appropriate, such as Morning Snack, Dessert, or Late Snack."));
  session.boxes.Inform(
      QStringLiteral("Important Notice About Backup and Restore"),
      QStringLiteral(
          "The Backup and Restore features have been completely revamped in this update.  Your backups will "
          "now be compressed so that they take less space and can fit onto a single floppy diskette.  This is "
          "a dramatic change to the backup process, however, and your previous backups are no longer "
          "compatible with this version of the program.") +
          blankLine +
          QStringLiteral("If you have any old backups, it is highly recommended that you discard them and do another "
                         "backup soon."));
}

}  // namespace

void ShowOpenFailure(Session &session, const Failure &failure) {
  switch (failure.number) {
    case error_number::fileMissing:
      session.boxes.Critical(
          QStringLiteral("Database File Missing"),
          QStringLiteral("The database (") + QuotedDataFile(session) +
              QStringLiteral(") could not be opened because it was not found in the program directory.") + blankLine +
              QStringLiteral("One possible solution would be to re-install Trimlog Pro.  If that does not work, please "
                             "contact Corvane Software to resolve the problem."));
      return;
    case error_number::fileDamaged:
      session.boxes.Critical(
          QStringLiteral("Database File Corrupt"),
          QStringLiteral("The database (") + QuotedDataFile(session) +
              QStringLiteral(") could not be opened because it is corrupt.") + blankLine +
              QStringLiteral("This can happen if your computer crashes while the program is open, and most of the time "
                             "the file can be repaired completely.  Please contact Corvane Software to resolve the "
                             "problem."));
      return;
    default:
      session.boxes.Critical(
          QStringLiteral("Could Not Open Database"),
          QStringLiteral("There was an error opening the database.  Please contact Corvane Software at ") +
              product::supportMail + QStringLiteral(" and give them the following details:") + blankLine +
              QStringLiteral("Error Number: ") + QString::number(failure.number) +
              QStringLiteral("\nError Description: ") + failure.description);
  }
}

void ShowUpgradeNotices(Session &session, const QString &oldVersion, const std::function<void()> &openSetup) {
  constexpr double withGender = 2.5;
  constexpr double withMealTypes = 2.7;
  const std::optional<double> version = ParseNumber(oldVersion);
  if (!version) return;  // nothing was upgraded
  if (*version < withGender) AskForGenderAndBirthDate(session, openSetup);
  if (*version < withMealTypes) TellOfMealTypesAndBackup(session);
}

bool AskToCloseWithoutSaving(Session &session) {
  return session.boxes.Ask(
      QStringLiteral("Close Without Saving?"),
      QStringLiteral(
          "The weight that you typed could not be saved.  Would you like to close the program without saving "
          "this weight?"),
      BoxButton::No);
}

}  // namespace trimlog
