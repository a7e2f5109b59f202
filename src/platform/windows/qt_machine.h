#pragma once

#include <memory>

#include "platform/machine.h"

namespace trimlog {

class WavePlayer;

/// The machine that the program runs on.
class QtMachine final : public Machine {
 public:
  QtMachine();
  ~QtMachine() override;

  bool OpenInBrowser(const QString &url) override;
  bool Start(const QString &program, const QStringList &arguments) override;
  void PlaySound(const QString &path) override;
  double GetNumColors() const override;
  QString AccountName() const override;
  bool HasWindowTitled(const QString &title) const override;

 private:
  std::unique_ptr<WavePlayer> player_;  ///< made with the first sound: finding the audio devices takes its time
};

}  // namespace trimlog
