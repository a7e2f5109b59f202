#pragma once

#include <QObject>
#include <memory>

class QSocketNotifier;

namespace trimlog {

/// The machine's wish that the program ends (terminate, hang-up, interrupt), brought into the event loop, where the
/// program can still save what is being typed. A signal that was ignored before stays ignored. One of these at a time.
class EndSignals : public QObject {
  Q_OBJECT
 public:
  EndSignals();
  ~EndSignals() override;

 Q_SIGNALS:
  void EndRequested();

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace trimlog
