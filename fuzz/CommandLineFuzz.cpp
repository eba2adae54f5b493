// Arguments of any bytes, one a line, end with a known status; bad input leaves one line and no answer.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include <app/program/Run.h>
#include <app/request/Command.h>
#include <app/request/CommandLine.h>

// Such arguments are read, but the file that they name is not written.
static bool asksForPicture(const std::vector<std::string>& arguments) {
  using namespace velmora::app;
  try {
    return requestFromArguments(arguments).command->name == "draw";
  } catch (const std::exception&) {
    return false;
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream text(std::string(reinterpret_cast<const char*>(data), size));
  std::vector<std::string> arguments;
  for (std::string argument; std::getline(text, argument);) arguments.push_back(argument);

  if (asksForPicture(arguments)) return 0;

  std::istringstream in;
  std::ostringstream out, err;
  const int status = velmora::app::run(arguments, in, out, err);
  const std::string message = err.str();
  if (status < 0 || status > 2) std::abort();
  if ((status == 0) != message.empty()) std::abort();
  if (status == 2 && !out.str().empty()) std::abort();
  if (std::count(message.begin(), message.end(), '\n') > 1 || message.size() > 1000) std::abort();
  return 0;
}
