#pragma once

#include "platform/machine/machine.h"

namespace trimlog {

/// The machine that the program runs on.
class QtMachine final : public Machine {
 public:
  bool OpenInBrowser(const QString &url) override;
  bool Start(const QString &program, const QStringList &arguments) override;
  void PlaySound(const QString &path) override;
  double GetNumColors() const override;
  QString AccountName() const override;
  bool HasWindowTitled(const QString &title) const override;
};

}  // namespace trimlog
