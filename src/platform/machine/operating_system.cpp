#include "platform/machine/operating_system.h"

#include <QOperatingSystemVersion>
#include <QSettings>

namespace trimlog {

namespace {

class HostSystem final : public OperatingSystem {
 public:
  WindowsVersion Version() const override {
    SystemVersion system;
#ifdef Q_OS_WIN
    const QOperatingSystemVersion current = QOperatingSystemVersion::current();
    system = {2, current.majorVersion(), current.minorVersion(), current.microVersion(), {}};
#endif
    return NameWindowsVersion(system);
  }

  std::optional<QVariant> ReadKey([[maybe_unused]] KeyRoot root, [[maybe_unused]] const QString &key,
                                  [[maybe_unused]] const QString &valueName) const override {
#ifdef Q_OS_WIN
    static const QString roots[] = {QStringLiteral("HKEY_LOCAL_MACHINE\\"), QStringLiteral("HKEY_CURRENT_USER\\"),
                                    QStringLiteral("HKEY_CLASSES_ROOT\\")};
    const QSettings registry(roots[static_cast<int>(root)] + key, QSettings::NativeFormat);
    const QVariant value = registry.value(valueName.isEmpty() ? QStringLiteral("Default") : valueName);
    if (!value.isValid()) return std::nullopt;
    return value.typeId() == QMetaType::QString ? value : QVariant(value.toUInt());
#else
    return std::nullopt;
#endif
  }
};

}  // namespace

std::unique_ptr<OperatingSystem> RunningSystem() { return std::make_unique<HostSystem>(); }

bool GetKeyValue(const OperatingSystem &system, KeyRoot root, const QString &key, const QString &valueName,
                 QString &result) {
  result.clear();
  const std::optional<QVariant> value = system.ReadKey(root, key, valueName);
  if (!value) return false;
  if (value->typeId() == QMetaType::QString) {
    result = value->toString().section(QChar(0), 0, 0);
  } else if (value->typeId() == QMetaType::UInt) {
    result = QStringLiteral("&h") + QString::number(value->toUInt(), 16).toUpper();
  } else {
    return false;
  }
  return true;
}

}  // namespace trimlog
