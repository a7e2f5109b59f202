#include "platform/machine/single_instance.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QThread>

namespace trimlog {
namespace {

/// Local sockets need an application object for their events.
class OneCopy : public ::testing::Test {
 protected:
  int argc_ = 1;
  char name_[5] = "test";
  char *argv_[2] = {name_, nullptr};
  QCoreApplication application_{argc_, argv_};
  QTemporaryDir folder_;
};

/// Becomes the first copy in a process of its own and stays until it is killed.
pid_t StartCopy(const QString &folder) {
  int ready[2];
  if (pipe(ready) != 0) return -1;
  const pid_t child = fork();
  if (child == 0) {
    SingleInstance copy(folder);
    const char answer = copy.ActivatePrevInstance() ? 'n' : 'y';
    if (write(ready[1], &answer, 1) == 1) {
      while (true) pause();
    }
    _exit(1);
  }
  char answer = 0;
  EXPECT_EQ(read(ready[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y');
  close(ready[0]);
  close(ready[1]);
  return child;
}

/// A later copy asks, in a thread of its own, while the first one's events run.
bool LaterIsAnswered(const QString &folder) {
  bool answered = false;
  const std::unique_ptr<QThread> later(QThread::create([&] {
    SingleInstance copy(folder);
    answered = copy.ActivatePrevInstance();
  }));
  later->start();
  while (!later->wait(1)) QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  return answered;
}

TEST_F(OneCopy, TheSecondRaisesTheFirst) {
  SingleInstance first(folder_.path());
  int raised = 0;
  QObject::connect(&first, &SingleInstance::RaiseRequested, &application_, [&raised] { ++raised; });
  EXPECT_FALSE(first.ActivatePrevInstance());
  EXPECT_FALSE(first.ActivatePrevInstance()) << "the same copy starts again after a restore";

  EXPECT_TRUE(LaterIsAnswered(folder_.path() + "/"));
  EXPECT_EQ(raised, 1);

  QTemporaryDir otherFolder;
  SingleInstance other(otherFolder.path());
  EXPECT_FALSE(other.ActivatePrevInstance()) << "another program directory is another program";
}

TEST_F(OneCopy, TheNextIsFirstAgainAfterAnEnd) {
  {
    SingleInstance first(folder_.path());
    EXPECT_FALSE(first.ActivatePrevInstance());
  }
  SingleInstance next(folder_.path());
  EXPECT_FALSE(next.ActivatePrevInstance());
}

TEST_F(OneCopy, NeitherAHangingNorAKilledCopyStopsTheNextWithoutAWord) {
  const pid_t first = StartCopy(folder_.path());
  ASSERT_GT(first, 0);
  EXPECT_FALSE(SingleInstance(folder_.path()).ActivatePrevInstance()) << "it holds its lock and never answers";
  kill(first, SIGKILL);
  waitpid(first, nullptr, 0);

  SingleInstance next(folder_.path());
  EXPECT_FALSE(next.ActivatePrevInstance());
  int raised = 0;
  QObject::connect(&next, &SingleInstance::RaiseRequested, &application_, [&raised] { ++raised; });
  EXPECT_TRUE(LaterIsAnswered(folder_.path()));
  EXPECT_EQ(raised, 1) << "the socket left behind does not keep the next copy from listening";
}

TEST_F(OneCopy, AnotherUserWhoAnswersInItsPlaceIsNotBelieved) {
  if (getuid() != 0) GTEST_SKIP() << "needs a second user";
  ASSERT_EQ(chmod(qPrintable(folder_.path()), 0755), 0);
  SingleInstance own(folder_.path());
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t stranger = fork();
  if (stranger == 0) {
    if (setuid(65534) != 0) _exit(1);
    const int directory = open(qPrintable(folder_.path()), O_RDONLY | O_DIRECTORY);
    QLocalServer server;
    server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    const bool poses = flock(directory, LOCK_EX | LOCK_NB) == 0 && server.listen(own.ListenerName());
    const char answer = poses ? 'y' : 'n';
    if (write(ready[1], &answer, 1) != 1 || !server.waitForNewConnection(20000)) _exit(1);
    QLocalSocket *caller = server.nextPendingConnection();
    caller->write("raised");
    caller->flush();
    while (true) pause();
  }
  char answer = 0;
  ASSERT_EQ(read(ready[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y');
  EXPECT_FALSE(own.ActivatePrevInstance());
  kill(stranger, SIGKILL);
  waitpid(stranger, nullptr, 0);
}

TEST_F(OneCopy, AProgramFolderThatCannotBeWrittenDoesNotStopTheStart) {
  SingleInstance copy(folder_.filePath("none"));
  EXPECT_FALSE(copy.ActivatePrevInstance());
}

}  // namespace
}  // namespace trimlog
