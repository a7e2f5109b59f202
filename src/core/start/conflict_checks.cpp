#include "core/start/conflict_checks.h"

#include "core/session/product.h"
#include "platform/text/text_format.h"

namespace trimlog {

namespace {

const QString paragraph = QStringLiteral("\n\n");
const QString settled = QStringLiteral("0");

/// What one check says and where it leads.
struct Conflict {
  QString setting;  ///< not empty once the matter is settled
  QString title;
  QString question;
  QString browserFailure;
  QString page;
};

bool HasOldDriver(const OperatingSystem &system, const QString &key) {
  const auto value = [&system, &key](const char *name) {
    QString text;
    GetKeyValue(system, KeyRoot::LocalMachine, key, QLatin1String(name), text);
    return text;
  };
  const QDate date = ParseDate(value("DriverDate"), QLocale(QLocale::English, QLocale::UnitedStates));
  return value("ProviderName").toUpper() == QLatin1String("NVIDIA") && value("Ver") == QLatin1String("4.0") &&
         date.isValid() && date >= QDate(1999, 1, 1) && date <= QDate(1999, 5, 31);
}

bool HasDriverProblem(const OperatingSystem &system) {
  const WindowsVersion version = system.Version();
  if (!version.IsWin95() && !version.IsWin98() && !version.IsWinME()) return false;
  for (const char *device : {"\\0000", "\\0001", "\\0002"}) {
    const QString key = QStringLiteral("System\\CurrentControlSet\\Services\\Class\\Display") + QLatin1String(device);
    if (HasOldDriver(system, key)) return true;
  }
  return false;
}

/// False: the person went to the support page.
bool AskAboutConflict(Session &session, const Conflict &conflict) {
  const BoxButton answer = session.boxes.Show(
      {conflict.title, conflict.question, BoxIcon::Warning, {BoxButton::Yes, BoxButton::No}, BoxButton::Yes});
  if (answer == BoxButton::Yes) {
    if (!session.machine.OpenInBrowser(conflict.page)) {
      session.boxes.Critical(QStringLiteral("Problem Opening Web Browser"),
                             conflict.browserFailure + paragraph + conflict.page);
    }
    return false;
  }
  session.boxes.Inform(
      conflict.title,
      QStringLiteral("Please write down the following address to our web site, where you can go if you happen to "
                     "experience a problem:") +
          paragraph + conflict.page + paragraph +
          QStringLiteral(
              "You will not receive this message again.  Thank you and remember -- if you have any questions "
              "or problems, feel free to contact us at ") +
          product::supportMail + QStringLiteral(" and we will be happy to help."));
  session.store.SaveSettingString(settingsRoot, conflict.setting, settled);
  return true;
}

/// False: the program ends.
bool Check(Session &session, const Conflict &conflict, const std::function<bool()> &isPresent) {
  if (!session.store.GetSettingString(settingsRoot, conflict.setting).isEmpty()) return true;
  if (isPresent()) return AskAboutConflict(session, conflict);
  session.store.SaveSettingString(settingsRoot, conflict.setting, settled);
  return true;
}

Conflict VideoDriver() {
  return {
      QStringLiteral("CheckForConflicts1"), QStringLiteral("Possible Video Driver Problem"),
      QStringLiteral("It appears that you have an \"nVidia TNT\" compatible video card in your computer with older "
                     "drivers.  This is a specific scenerio, which we have found to cause problems with Trimlog Pro.") +
          paragraph +
          QStringLiteral("To resolve this problem just go to the \"Support\" area of our web site where we have "
                         "provided a way for you to update your video drivers.  We have made every attempt to make "
                         "this as quick and easy as possible.") +
          paragraph + QStringLiteral("Would you like to go to there now to learn more and update your drivers?"),
      QStringLiteral("There was a problem opening your default web browser.  Please open your web browser and go to "
                     "the following web site now, where you can obtain newer video drivers for your computer:"),
      product::videoDriverPage};
}

Conflict GuardDog() {
  return {
      QStringLiteral("CheckForConflicts2"), QStringLiteral("Internet Guard Dog Conflict"),
      QStringLiteral("It appears that McAfee Internet Guard Dog is currently running.  This specific application has "
                     "been known interfere with Trimlog Pro, causing problems when trying to close the program.") +
          paragraph +
          QStringLiteral("We suggest that you go to the Trimlog Pro web site now to learn more about this known "
                         "problem.  Would you like to do this now?"),
      QStringLiteral("There was a problem opening your default web browser.  Please open your web browser and go to "
                     "the following web site now, where you can learn more about the Internet Guard Dog conflict:"),
      product::guardDogPage};
}

}  // namespace

bool CheckForConflicts(Session &session, const OperatingSystem &system) {
  return Check(session, VideoDriver(), [&system] { return HasDriverProblem(system); }) &&
         Check(session, GuardDog(),
               [&] { return session.machine.HasWindowTitled(QStringLiteral("Internet Guard Dog")); });
}

}  // namespace trimlog
