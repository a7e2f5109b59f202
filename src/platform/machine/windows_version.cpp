#include "platform/machine/windows_version.h"

#include <optional>

namespace trimlog {

namespace {

struct KnownVersion {
  int code;
  QLatin1String name;
  int platform;
  std::optional<int> major;  ///< nothing: any
  std::optional<int> minor;
};

const KnownVersion knownVersions[] = {
    {2, QLatin1String("Windows 32s"), 0, {}, {}}, {3, QLatin1String("Windows 95"), 1, {}, 0},
    {4, QLatin1String("Windows 98"), 1, {}, 10},  {5, QLatin1String("Windows ME"), 1, {}, 90},
    {32, QLatin1String("Windows NT3"), 2, 3, {}}, {33, QLatin1String("Windows NT4"), 2, 4, {}},
    {34, QLatin1String("Windows 2000"), 2, 5, 0}, {35, QLatin1String("Whistler"), 2, 5, 1},
};

}  // namespace

WindowsVersion NameWindowsVersion(const SystemVersion &system) {
  WindowsVersion version;
  version.major = system.major;
  version.minor = system.minor;
  version.platform = system.platform;
  version.build = system.platform == 1 ? system.build & 0xFFFF : system.build;
  version.servicePack = system.servicePack.section(QChar(0), 0, 0).trimmed();
  for (const KnownVersion &known : knownVersions) {
    if (known.platform == system.platform && known.major.value_or(system.major) == system.major &&
        known.minor.value_or(system.minor) == system.minor) {
      version.code = known.code;
      version.name = known.name;
      break;
    }
  }
  return version;
}

}  // namespace trimlog
