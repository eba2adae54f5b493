#pragma once

#include <sys/types.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmora::testing {

/// How the program is started, with its input and output in files unless `inChild` changes that.
struct Start {
  std::vector<std::string> arguments;
  std::string input = {};
  std::map<std::string, std::optional<std::string>> environment = {};  ///< none removes a variable
  std::function<void()> inChild = {};                                  ///< the last before it is executed
};

/// How it ended.
struct End {
  int status = 0;  ///< the exit status, or the signal that ended it as a negative number
  std::string out, err;
};

/// Runs the program of this build in a process of its own.
End runProcess(const Start& start);

/// The program as it runs, on pipes.
class RunningProgram {
 public:
  explicit RunningProgram(const std::vector<std::string>& arguments);
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  /// As much of the text as the pipe takes at once.
  void write(const std::string& text);
  /// The next output, at most some kilobytes; empty at the end.
  std::string read();
  void signal(int number);
  /// Waits for its end; the status is as above.
  int wait();

 private:
  pid_t _process = -1;
  int _input = -1, _output = -1;
};

}  // namespace velmora::testing
