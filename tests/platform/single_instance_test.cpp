#include "platform/machine/single_instance.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTemporaryDir>

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

TEST_F(OneCopy, TheSecondRaisesTheFirst) {
  SingleInstance first(folder_.path());
  int raised = 0;
  QObject::connect(&first, &SingleInstance::RaiseRequested, &application_, [&raised] { ++raised; });
  EXPECT_FALSE(first.ActivatePrevInstance());
  EXPECT_FALSE(first.ActivatePrevInstance()) << "the same copy starts again after a restore";

  SingleInstance second(folder_.path() + QStringLiteral("/"));
  EXPECT_TRUE(second.ActivatePrevInstance());
  QElapsedTimer waited;
  for (waited.start(); raised == 0 && waited.elapsed() < 5000;) QCoreApplication::processEvents();
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

TEST_F(OneCopy, AKilledCopyLeavesNoLock) {
  const pid_t first = StartCopy(folder_.path());
  ASSERT_GT(first, 0);
  {
    SingleInstance second(folder_.path());
    EXPECT_TRUE(second.ActivatePrevInstance());
  }
  kill(first, SIGKILL);
  waitpid(first, nullptr, 0);

  SingleInstance next(folder_.path());
  EXPECT_FALSE(next.ActivatePrevInstance());
  int raised = 0;
  QObject::connect(&next, &SingleInstance::RaiseRequested, &application_, [&raised] { ++raised; });
  SingleInstance later(folder_.path());
  EXPECT_TRUE(later.ActivatePrevInstance());
  QElapsedTimer waited;
  for (waited.start(); raised == 0 && waited.elapsed() < 5000;) QCoreApplication::processEvents();
  EXPECT_EQ(raised, 1) << "the socket left behind does not keep the next copy from listening";
}

TEST_F(OneCopy, AProgramFolderThatCannotBeWrittenDoesNotStopTheStart) {
  SingleInstance copy(folder_.filePath(QStringLiteral("none")));
  EXPECT_FALSE(copy.ActivatePrevInstance());
}

}  // namespace
}  // namespace trimlog
