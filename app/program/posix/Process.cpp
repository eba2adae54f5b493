#include <app/program/posix/Process.h>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace velmora::app {
namespace {

/// Takes the descriptor if it is free, so that what is meant for it fails as on a closed one.
void occupy(int descriptor, int mode) {
  if (fcntl(descriptor, F_GETFD) == -1) open("/dev/null", mode);  // takes the lowest that is free
}

}  // namespace

void prepareProcess() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  occupy(STDIN_FILENO, O_WRONLY);
  occupy(STDOUT_FILENO, O_RDONLY);
  occupy(STDERR_FILENO, O_RDONLY);
}

}  // namespace velmora::app
