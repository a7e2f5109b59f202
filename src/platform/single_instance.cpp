#include "platform/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>

namespace trimlog {

namespace {

constexpr int firstMayBeStarting = 3000;  ///< milliseconds until its listener must be there

/// A name of its own for each user and program directory.
QString NameFor(const QString &programDirectory) {
  const QString canonical = QFileInfo(programDirectory).canonicalFilePath();
  const QString place = (canonical.isEmpty() ? programDirectory : canonical) + u'\n' + QDir::homePath();
  const QByteArray hash = QCryptographicHash::hash(place.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
  return QStringLiteral("trimlog-") + QString::fromLatin1(hash);
}

/// The user's own folder for running programs; a socket's path is limited to about a hundred characters.
QString RuntimeFolder() {
  constexpr int longestFolder = 70;
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  return folder.isEmpty() || folder.toLocal8Bit().size() > longestFolder ? QDir::tempPath() : folder;
}

/// Windows names a pipe, other systems a socket file.
QString ServerName(const QString &folder, const QString &name) {
#ifdef Q_OS_WIN
  Q_UNUSED(folder);
  return name;
#else
  return QDir(folder).filePath(name);
#endif
}

}  // namespace

SingleInstance::SingleInstance(const QString &programDirectory) {
  const QString folder = RuntimeFolder();
  const QString name = NameFor(programDirectory);
  serverName_ = ServerName(folder, name);
  lock_ = std::make_unique<QLockFile>(QDir(folder).filePath(name + QStringLiteral(".lock")));
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
  // Where no lock can be written at all nobody else can hold one.
  if (lock_->error() != QLockFile::LockFailedError) return false;
  AskToRaise();
  return true;
}

void SingleInstance::Listen() {
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  if (server_.listen(serverName_)) return;
  // The socket of a copy that was killed: the lock says that nobody listens there.
  QLocalServer::removeServer(serverName_);
  server_.listen(serverName_);
}

void SingleInstance::AskToRaise() const {
  QElapsedTimer waited;
  waited.start();
  do {
    QLocalSocket socket;
    socket.connectToServer(serverName_);
    if (socket.waitForConnected(firstMayBeStarting)) return;
    constexpr unsigned long pause = 50;
    QThread::msleep(pause);
  } while (waited.elapsed() < firstMayBeStarting);
}

}  // namespace trimlog
