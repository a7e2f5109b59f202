#pragma once

#include <QString>

namespace trimlog {

/// What the system says of itself.
struct SystemVersion {
  int platform = -1;  ///< 0, 1 and 2 for the three families of Windows; -1 where there is no Windows
  int major = 0;
  int minor = 0;
  int build = 0;
  QString servicePack;  ///< may go on behind a NUL
};

/// The version record: the system's code and name beside what it says of itself.
struct WindowsVersion {
  int code = 0;
  QString name = QStringLiteral("Unknown");
  int major = 0;
  int minor = 0;
  int build = 0;
  int platform = -1;
  QString servicePack;

  bool IsWin95() const { return code == 3; }
  bool IsWin98() const { return code == 4; }
  bool IsWinME() const { return code == 5; }
};

/// Names a system version. The build of the 9x family carries flags in its high half, which are dropped.
WindowsVersion NameWindowsVersion(const SystemVersion &system);

}  // namespace trimlog
