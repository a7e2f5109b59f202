#pragma once

#include <QString>
#include <QVariant>
#include <memory>
#include <optional>

#include "platform/machine/windows_version.h"

namespace trimlog {

enum class KeyRoot { LocalMachine, CurrentUser, ClassesRoot };

/// What the operating system knows of itself and of the programs installed on it. Where it keeps no registry every key
/// is missing.
class OperatingSystem {
 public:
  virtual ~OperatingSystem() = default;
  virtual WindowsVersion Version() const = 0;
  /// A registry value: text, or a 32-bit number as quint32; nothing when it is not there.
  virtual std::optional<QVariant> ReadKey(KeyRoot root, const QString &key, const QString &valueName) const = 0;
};

/// The system that the program runs on.
std::unique_ptr<OperatingSystem> RunningSystem();

/// Reads a registry value as text. Text ends at its first NUL; a 32-bit number becomes hexadecimal digits behind "&h".
/// False, and an empty result, when the value is not there or of another kind.
bool GetKeyValue(const OperatingSystem &system, KeyRoot root, const QString &key, const QString &valueName,
                 QString &result);

}  // namespace trimlog
