#include "core/session/system_services.h"

#include <QDir>
#include <QFile>

namespace trimlog {

namespace {

/// The system information tool, "" when none is installed.
QString SystemInformationTool(const OperatingSystem &system) {
  QString path;
  if (GetKeyValue(system, KeyRoot::LocalMachine, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                  QStringLiteral("PATH"), path)) {
    return path;
  }
  if (GetKeyValue(system, KeyRoot::LocalMachine, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                  QStringLiteral("MSINFO"), path)) {
    path += QDir::separator() + QStringLiteral("MSINFO32.EXE");
    if (QFile::exists(path)) return path;
  }
  return {};
}

}  // namespace

QString GetLocaleValue(const QLocale &locale, int infoType) {
  switch (infoType) {
    case localeDecimalSign:
      return locale.decimalPoint();
    case localeShortDate:
      return locale.dateFormat(QLocale::ShortFormat);
    default:
      return {};
  }
}

QString TrimTrailingSlash(const QString &path) {
  return path.endsWith(u'/') || path.endsWith(u'\\') ? path.chopped(1) : path;
}

void GotoWebAddress(Session &session, const QString &url) {
  if (session.machine.OpenInBrowser(url)) return;
  session.boxes.Critical({}, QStringLiteral("An error occurred while trying to open your default web browser.  The web "
                                            "page cannot be displayed."));
}

void StartSysInfo(Session &session, const OperatingSystem &system) {
  const QString tool = SystemInformationTool(system);
  if (!tool.isEmpty() && session.machine.Start(tool, {})) return;
  session.boxes.Plain({}, QStringLiteral("System Information Is Unavailable At This Time"));
}

}  // namespace trimlog
