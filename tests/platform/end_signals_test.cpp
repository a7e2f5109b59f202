#include "platform/machine/end_signals.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace trimlog {
namespace {

TEST(EndSignals, ReachTheEventLoopUnlessTheyWereIgnored) {
  int argc = 1;
  char name[] = "test";
  char *argv[] = {name, nullptr};
  QCoreApplication application(argc, argv);
  const auto arrives = [](int number) {
    EndSignals signals;
    int wishes = 0;
    QObject::connect(&signals, &EndSignals::EndRequested, [&wishes] { ++wishes; });
    raise(number);
    EXPECT_EQ(wishes, 0) << "not inside the handler";
    for (QDeadlineTimer patience(500); wishes == 0 && !patience.hasExpired();) QCoreApplication::processEvents();
    return wishes == 1;
  };
  for (const int number : {SIGTERM, SIGHUP, SIGINT}) EXPECT_TRUE(arrives(number)) << number;

  signal(SIGHUP, SIG_IGN);  // as nohup does
  EXPECT_FALSE(arrives(SIGHUP));
  signal(SIGHUP, SIG_DFL);
  struct sigaction left {};
  sigaction(SIGTERM, nullptr, &left);
  EXPECT_EQ(left.sa_handler, SIG_DFL);
}

}  // namespace
}  // namespace trimlog
