#include "platform/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace trimlog {

namespace {

constexpr int firstMayBeStarting = 3000;  ///< milliseconds until its listener must be there

/// Who runs the program. Not from the environment: two sessions of one person are one user.
QString UserMark() {
#ifdef Q_OS_UNIX
  return QString::number(getuid());
#else
  return QDir::homePath();
#endif
}

/// A name of its own for each user and program directory.
QString NameFor(const QString &programDirectory) {
  const QString canonical = QFileInfo(programDirectory).canonicalFilePath();
  const QString place = (canonical.isEmpty() ? programDirectory : canonical) + u'\n' + UserMark();
  const QByteArray hash = QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
  return QStringLiteral("trimlog-") + QString::fromLatin1(hash);
}

}  // namespace

SingleInstance::SingleInstance(const QString &programDirectory)
    : name_(NameFor(programDirectory)),
      lock_(std::make_unique<QLockFile>(QDir(programDirectory).filePath(u'.' + name_ + QStringLiteral(".lock")))) {
  lock_->setStaleLockTime(0);  // only a process that is gone gives its lock up, not one that runs for long
  connect(&server_, &QLocalServer::newConnection, this, [this] {
    while (QLocalSocket *caller = server_.nextPendingConnection()) caller->deleteLater();
    Q_EMIT RaiseRequested();
  });
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::ActivatePrevInstance() {
  if (lock_->isLocked()) return false;
  if (lock_->tryLock()) {
    Listen();
    return false;
  }
  // Where no lock can be written nobody else holds one; and where nobody answers, this copy goes on, to say that the
  // data file is in use rather than to end without a word.
  return lock_->error() == QLockFile::LockFailedError && AskToRaise();
}

void SingleInstance::Listen() {
  // An abstract name on Linux: it needs no file and is gone with its process. Elsewhere the option means nothing.
  server_.setSocketOptions(QLocalServer::AbstractNamespaceOption);
  if (server_.listen(name_)) return;
  // The socket of a copy that was killed: the lock says that nobody listens there.
  QLocalServer::removeServer(name_);
  server_.listen(name_);
}

bool SingleInstance::AskToRaise() const {
  QElapsedTimer waited;
  waited.start();
  do {
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(name_);
    if (socket.waitForConnected(firstMayBeStarting)) return true;
    constexpr unsigned long pause = 50;
    QThread::msleep(pause);
  } while (waited.elapsed() < firstMayBeStarting);
  return false;
}

}  // namespace trimlog
