#include "platform/machine/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#else
#include <QLockFile>
#endif

namespace trimlog {

namespace {

constexpr int firstMayBeStarting = 3000;  ///< milliseconds until its listener must be there
constexpr const char *answer = "raised";

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

/// True when the process at the other end of a connection is this user's.
bool IsOwnUser([[maybe_unused]] const QLocalSocket &socket) {
#if defined(Q_OS_LINUX)
  ucred peer{};
  socklen_t size = sizeof peer;
  const int descriptor = static_cast<int>(socket.socketDescriptor());
  return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
#elif defined(Q_OS_UNIX)
  uid_t user{};
  gid_t group{};
  return getpeereid(static_cast<int>(socket.socketDescriptor()), &user, &group) == 0 && user == getuid();
#else
  return true;  // the pipe's own rights keep other users out
#endif
}

}  // namespace

/// What the first copy holds. It ends with its process, however that died.
class SingleInstance::Lock {
 public:
  enum class State { Held, Taken, Impossible };
  bool IsHeld() const { return state_ == State::Held; }
  State Try();

#ifdef Q_OS_UNIX
  /// The directory itself is locked: nothing is written, and nothing stale can be left behind.
  Lock(const QString &programDirectory, const QString &)
      : directory_(open(QFile::encodeName(programDirectory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
  ~Lock() {
    if (directory_ >= 0) close(directory_);
  }
  Lock(const Lock &) = delete;
  Lock &operator=(const Lock &) = delete;

 private:
  const int directory_;
#else
  Lock(const QString &programDirectory, const QString &name)
      : file_(QDir(programDirectory).filePath(u'.' + name + QStringLiteral(".lock"))) {
    file_.setStaleLockTime(0);  // only a process that is gone gives its lock up, not one that runs for long
  }

 private:
  QLockFile file_;
#endif
  State state_ = State::Impossible;
};

SingleInstance::Lock::State SingleInstance::Lock::Try() {
#ifdef Q_OS_UNIX
  const bool held = directory_ >= 0 && flock(directory_, LOCK_EX | LOCK_NB) == 0;
  const bool taken = directory_ >= 0 && errno == EWOULDBLOCK;
#else
  const bool held = file_.tryLock();
  const bool taken = file_.error() == QLockFile::LockFailedError;
#endif
  state_ = held ? State::Held : taken ? State::Taken : State::Impossible;
  return state_;
}

SingleInstance::SingleInstance(const QString &programDirectory)
    : name_(NameFor(programDirectory)), lock_(std::make_unique<Lock>(programDirectory, name_)) {
  connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::AnswerCallers);
}

void SingleInstance::AnswerCallers() {
  bool wanted = false;
  while (QLocalSocket *caller = server_.nextPendingConnection()) {
    if (IsOwnUser(*caller)) {
      caller->write(answer);
      caller->flush();
      wanted = true;
    }
    caller->disconnectFromServer();
    caller->deleteLater();
  }
  if (wanted) Q_EMIT RaiseRequested();
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::ActivatePrevInstance() {
  if (lock_->IsHeld()) return false;
  const Lock::State state = lock_->Try();
  if (state == Lock::State::Held) Listen();
  // Where no lock can be had nobody else holds one; and where nobody answers, this copy goes on, to say that the data
  // file is in use rather than to end without a word.
  return state == Lock::State::Taken && AskToRaise();
}

void SingleInstance::Listen() {
  // An abstract name on Linux: it needs no file and is gone with its process.
#ifdef Q_OS_LINUX
  server_.setSocketOptions(QLocalServer::AbstractNamespaceOption);
#else
  server_.setSocketOptions(QLocalServer::UserAccessOption);
#endif
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
    if (socket.waitForConnected(firstMayBeStarting)) {
      if (!IsOwnUser(socket)) return false;
      // A copy that does not answer hangs: better to say that the data file is in use than to end without a word.
      return socket.waitForReadyRead(firstMayBeStarting) && socket.readAll() == answer;
    }
    constexpr unsigned long pause = 50;
    QThread::msleep(pause);
  } while (waited.elapsed() < firstMayBeStarting);
  return false;
}

}  // namespace trimlog
