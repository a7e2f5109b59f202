#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace trimlog {

/// Time comes from here, so that a test can say "it is the 1st of March".
class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDateTime Now() const = 0;
  QDate Today() const { return Now().date(); }
};
class SystemClock final : public Clock {
 public:
  QDateTime Now() const override { return QDateTime::currentDateTime(); }
};

/// What the program asks of the machine beyond files and windows. Every call answers for today's platform; what no
/// longer exists answers "not there".
class Machine {
 public:
  virtual ~Machine() = default;
  /// Opens an address in the default browser; false when that failed.
  virtual bool OpenInBrowser(const QString &url) = 0;
  /// Starts another program; false when that failed.
  virtual bool Start(const QString &program, const QStringList &arguments) = 0;
  /// Plays a wave file and returns at once; a missing file or device plays nothing.
  virtual void PlaySound(const QString &path) = 0;
  /// Colours that the screen can show, 2 to the power of its depth.
  virtual double GetNumColors() const = 0;
  /// The name of the account that the person is signed in with; the login name where no full name is kept.
  virtual QString AccountName() const = 0;
  /// True when a top-level window with exactly this title is open.
  virtual bool HasWindowTitled(const QString &title) const = 0;
};

}  // namespace trimlog
