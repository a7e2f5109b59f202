#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace trimlog {

/// Named text values under a key path (levels separated by a backslash). One implementation keeps them in an INI file
/// of the user's configuration folder (the registry on Windows), one in memory for tests. Never throws to the caller:
/// what cannot be read counts as missing.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// Told of every write that failed, with the place that could not be written.
  std::function<void(const QString &place)> writeFailed = {};

  /// The value up to its first NUL, or `fallback` when key or value is missing or not text.
  virtual QString GetSettingString(const QString &key, const QString &valueName,
                                   const QString &fallback = {}) const = 0;
  /// Written at once and durably. Returns false when the store could not be written.
  virtual bool SaveSettingString(const QString &key, const QString &valueName, const QString &value) = 0;
  virtual bool DeleteValue(const QString &key, const QString &valueName) = 0;
  virtual bool DeleteKey(const QString &key) = 0;
  virtual bool CreateKey(const QString &key) = 0;

  /// Between these two, saved values may be written together at the end: one safe write for a whole table. Returns
  /// false when the store could not be written. Use SettingsBatch.
  virtual void BeginBatch() {}
  virtual bool EndBatch() { return true; }

  int GetSettingLong(const QString &key, const QString &valueName, int fallback) const;
  bool SaveSettingLong(const QString &key, const QString &valueName, int value);
  int GetSettingByte(const QString &key, const QString &valueName, int fallback) const;
  bool SaveSettingByte(const QString &key, const QString &valueName, int value);
};

/// Values saved while it lives reach the disk together when it ends.
class SettingsBatch {
 public:
  explicit SettingsBatch(SettingsStore &store) : store_(store) { store_.BeginBatch(); }
  ~SettingsBatch() { store_.EndBatch(); }
  SettingsBatch(const SettingsBatch &) = delete;
  SettingsBatch &operator=(const SettingsBatch &) = delete;

 private:
  SettingsStore &store_;
};

/// The user's own store, in the platform's place for it.
std::unique_ptr<SettingsStore> OpenUserSettings();
/// The same form in a given INI file.
std::unique_ptr<SettingsStore> OpenSettingsFile(const QString &path);

inline const QString settingsRoot = QStringLiteral("Software\\Corvane Software\\Trimlog\\2.0");

}  // namespace trimlog
