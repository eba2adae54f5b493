#include "tests/faults/Program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "tests/faults/Damage.h"
#include "tests/platform/resources/TemporaryFolder.h"

namespace velmora::testing {
namespace {

constexpr int notStarted = 126;

void changeEnvironment(const Start& start) {
  for (const auto& [name, value] : start.environment) {
    if (value) {
      setenv(name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name.c_str());
    }
  }
}

/// A program started in the background, as by nohup, hands down signals that it was told to ignore.
void heedSignals() {
  for (const int number : {SIGHUP, SIGINT, SIGTERM}) ::signal(number, SIG_DFL);
}

[[noreturn]] void execute(const std::vector<std::string>& arguments) {
  std::vector<char*> list = {const_cast<char*>(VELMORA_PROGRAM)};
  for (const std::string& argument : arguments) list.push_back(const_cast<char*>(argument.c_str()));
  list.push_back(nullptr);
  execv(VELMORA_PROGRAM, list.data());
  _exit(notStarted);
}

void redirect(int descriptor, const std::string& file, int flags) {
  const int opened = open(file.c_str(), flags, 0644);
  if (opened == -1 || dup2(opened, descriptor) == -1) _exit(notStarted);
  close(opened);
}

pid_t forked() {
  const pid_t process = fork();
  if (process == -1) throw std::runtime_error("no process can be started");
  return process;
}

int statusOf(pid_t process) {
  int status = 0;
  if (waitpid(process, &status, 0) != process) throw std::runtime_error("the program is lost");
  return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

End runProcess(const Start& start) {
  const TemporaryFolder folder;
  const std::string in = folder.write("in", start.input).string();
  const std::string out = folder.write("out", "").string(), err = folder.write("err", "").string();
  const pid_t process = forked();
  if (process == 0) {
    heedSignals();
    redirect(STDIN_FILENO, in, O_RDONLY);
    redirect(STDOUT_FILENO, out, O_WRONLY);
    redirect(STDERR_FILENO, err, O_WRONLY);
    changeEnvironment(start);
    if (start.inChild) start.inChild();
    execute(start.arguments);
  }
  const int status = statusOf(process);
  return {status, bytesOfFile(out), bytesOfFile(err)};
}

RunningProgram::RunningProgram(const std::vector<std::string>& arguments) {
  std::array<int, 2> input{}, output{};
  if (pipe2(input.data(), O_CLOEXEC) != 0 || pipe2(output.data(), O_CLOEXEC) != 0)
    throw std::runtime_error("no pipe can be made");
  _process = forked();
  if (_process == 0) {
    heedSignals();
    dup2(input[0], STDIN_FILENO);
    dup2(output[1], STDOUT_FILENO);
    execute(arguments);
  }
  close(input[0]);
  close(output[1]);
  _input = input[1];
  _output = output[0];
  fcntl(_input, F_SETFL, O_NONBLOCK);
}

RunningProgram::~RunningProgram() {
  if (_process > 0) {
    signal(SIGKILL);
    wait();
  }
  close(_input);
  close(_output);
}

void RunningProgram::write(const std::string& text) {
  [[maybe_unused]] const auto written = ::write(_input, text.data(), text.size());
}

std::string RunningProgram::read() {
  std::array<char, 4000> bytes{};
  const auto count = ::read(_output, bytes.data(), bytes.size());
  return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : "";
}

void RunningProgram::signal(int number) { kill(_process, number); }

int RunningProgram::wait() {
  const int status = statusOf(_process);
  _process = -1;
  return status;
}

}  // namespace velmora::testing
