#include "platform/machine/end_signals.h"

#include <QSocketNotifier>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#endif

namespace trimlog {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array endingSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal handler is handed nothing but its number, and may do next to nothing: it writes a byte into a pipe whose
// other end the event loop watches.
std::array<int, 2> pipeEnds = {-1, -1};

void WakeEventLoop(int) {
  const int before = errno;
  const char any = 0;
  [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &any, 1);
  errno = before;
}

void Answer(void (*handler)(int)) {
  for (const int signal : endingSignals) {
    struct sigaction former {};
    if (sigaction(signal, nullptr, &former) != 0 || former.sa_handler == SIG_IGN) continue;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
  }
}

}  // namespace

EndSignals::EndSignals() {
  if (pipe(pipeEnds.data()) != 0) return;
  for (const int end : pipeEnds) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
    std::array<char, 16> bytes{};
    while (read(pipeEnds[0], bytes.data(), bytes.size()) > 0) continue;
    Q_EMIT EndRequested();
  });
  Answer(WakeEventLoop);
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  Answer(SIG_DFL);
  notifier_.reset();
  for (int &end : pipeEnds) close(std::exchange(end, -1));
}

#else

EndSignals::EndSignals() = default;
EndSignals::~EndSignals() = default;

#endif

}  // namespace trimlog
