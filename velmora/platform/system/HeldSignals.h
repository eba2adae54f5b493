#pragma once

#include <csignal>
#include <initializer_list>

namespace velmora {

/// Makes the signals that end a program (SIGHUP, SIGINT, SIGTERM) wait for as long as it lives, so that what
/// the thread is writing is written whole. One that came meanwhile takes effect at the end.
class HeldSignals {
 public:
  /// Holds them from here on.
  HeldSignals() {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) sigaddset(&ending, signal);
    pthread_sigmask(SIG_BLOCK, &ending, &_former);
  }
  /// Lets them through again, as before.
  ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &_former, nullptr); }
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

 private:
  sigset_t _former;
};

}  // namespace velmora
