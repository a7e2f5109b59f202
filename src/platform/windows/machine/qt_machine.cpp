#include "platform/windows/machine/qt_machine.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibrary>
#include <QProcess>
#include <QScreen>
#include <QUrl>
#include <QWindow>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace trimlog {

bool QtMachine::OpenInBrowser(const QString &url) { return QDesktopServices::openUrl(QUrl(url)); }

bool QtMachine::Start(const QString &program, const QStringList &arguments) {
  return QProcess::startDetached(program, arguments);
}

void QtMachine::PlaySound(const QString &path) {
  if (!QFileInfo(path).isFile()) return;
  QLibrary audio(QCoreApplication::applicationDirPath() + QStringLiteral("/trimlog_sound"));
  using Player = void (*)(const QString &);
  const auto PlayWave = reinterpret_cast<Player>(audio.resolve("PlayWave"));
  if (PlayWave) PlayWave(QFileInfo(path).absoluteFilePath());
}

double QtMachine::GetNumColors() const {
  constexpr int trueColour = 24;
  const QScreen *screen = QGuiApplication::primaryScreen();
  return std::pow(2.0, screen ? screen->depth() : trueColour);
}

#ifdef Q_OS_WIN

QString QtMachine::AccountName() const {
  wchar_t name[257] = {};
  DWORD length = 257;
  return GetUserNameW(name, &length) ? QString::fromWCharArray(name) : QString();
}

bool QtMachine::HasWindowTitled(const QString &title) const {
  return FindWindowW(nullptr, reinterpret_cast<const wchar_t *>(title.utf16())) != nullptr;
}

#else

QString QtMachine::AccountName() const {
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd *found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found) return {};
  // The full name is the first of the comma-separated facts about a person.
  const QString fullName = QString::fromLocal8Bit(found->pw_gecos).section(u',', 0, 0).trimmed();
  return fullName.isEmpty() ? QString::fromLocal8Bit(found->pw_name) : fullName;
}

bool QtMachine::HasWindowTitled(const QString &title) const {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  return std::any_of(windows.begin(), windows.end(),
                     [&title](const QWindow *window) { return window->isVisible() && window->title() == title; });
}

#endif

}  // namespace trimlog
