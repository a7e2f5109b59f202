#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <memory>

namespace trimlog {

/// One running copy for each program directory and user. The first copy holds a lock and listens; a later one asks it
/// to come to the front and ends once that has answered. Both make sure that they speak with the same user, so that
/// nobody else can make a start end without a word. The lock ends with its process, however that died.
class SingleInstance : public QObject {
  Q_OBJECT
 public:
  explicit SingleInstance(const QString &programDirectory);
  ~SingleInstance() override;

  /// True when another copy runs here: it has been asked to come forward, and this one must end. Otherwise this copy is
  /// the first from now on. Asking again as the first changes nothing.
  bool ActivatePrevInstance();
  /// Where the first copy listens.
  const QString &ListenerName() const { return name_; }

 Q_SIGNALS:
  /// A later copy asks this one to come forward.
  void RaiseRequested();

 private:
  class Lock;

  void Listen();
  void AnswerCallers();
  bool AskToRaise() const;

  QString name_;
  std::unique_ptr<Lock> lock_;
  QLocalServer server_;
};

}  // namespace trimlog
