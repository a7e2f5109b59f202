#include "core/program_files.h"

#include <QDir>
#include <QFileInfo>

#include "core/data_access.h"

namespace trimlog {

bool CheckDataFilePresent(Session &session) {
  if (QFileInfo::exists(session.DataFilePath())) return true;
  session.boxes.Critical(QStringLiteral("Trimlog"),
                         QStringLiteral("The program was unable to find the data file: ") +
                             QDir::toNativeSeparators(session.DataFilePath()) +
                             QStringLiteral(".  The program cannot start without this file."));
  return false;
}

FailureExit FrameLoadFailure() {
  return {QStringLiteral("frmMDI"), QStringLiteral("MDIForm_Load"), QStringLiteral("Error Loading Program"),
          QStringLiteral("An error occurred while loading the program.")};
}

bool ShowsSplash(const Session &session) { return !session.ReloadInProgress && session.settings.ShowSplash; }

bool OffersWizard(const Session &session) { return !session.ReloadInProgress && session.CurrentPersonID.toInt() == 1; }

bool OffersTutorial(const Session &session) { return !session.ReloadInProgress && session.settings.ShowTutorial; }

bool HasHandheldFoods(Session &session) {
  return !GetDataValue(session.Data(), QStringLiteral("MealID"), QStringLiteral("palm_selected_meals")).isEmpty();
}

bool StartTutorialSelector(Session &session) {
#ifdef Q_OS_WIN
  const QString name = QStringLiteral("tutorsel.exe");
#else
  const QString name = QStringLiteral("tutorsel");
#endif
  const QString path = QDir(session.programDirectory).filePath(name);
  return QFileInfo::exists(path) && session.machine.Start(path, {});
}

}  // namespace trimlog
