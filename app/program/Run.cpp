#include <app/program/Run.h>

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <app/program/Answer.h>
#include <app/program/Batch.h>
#include <app/program/Completion.h>
#include <app/program/Help.h>
#include <app/request/Command.h>
#include <app/request/CommandLine.h>
#include <app/text/Errors.h>
#include <velmora/Version.h>

namespace velmora::app {
namespace {

enum ExitStatus { done = 0, failed = 1, badInput = 2 };

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

bool isColorTerminal(const std::ostream& out) {
  const char* terminal = std::getenv("TERM");
  return &out == &std::cout && isatty(STDOUT_FILENO) && !isSet("NO_COLOR") &&
         std::strcmp(terminal ? terminal : "dumb", "dumb") != 0;
}

bool wantsBold(ColorChoice choice, const std::ostream& out) {
  return choice == ColorChoice::always || (choice == ColorChoice::automatic && isColorTerminal(out));
}

void answer(const Request& request, std::istream& in, std::ostream& out) {
  if (request.help) {
    out << helpText(*request.command, request.drawing.view);
  } else if (request.version) {
    out << "velmora " << VelmoraVersionString << '\n';
  } else if (request.command->name == "batch") {
    serveBatch(request, in, out);
  } else {
    out << printedAnswer(request, wantsBold(request.color, out));
  }
}

/// A reader that closed its end of a pipe has had enough: no message.
void checkWritten(std::ostream& out) {
  if (out) {
    errno = 0;
    out.flush();
  }
  if (!out) throw Failure(errno == EPIPE ? "" : "standard output cannot be written");
}

int complain(const std::exception& error, ExitStatus status, std::ostream& err) {
  const std::string message = messageOf(error);
  if (!message.empty()) err << "velmora: " << message << '\n';
  return status;
}

}  // namespace

int run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err) {
  try {
    if (asksForCompletion(arguments)) {
      offer(arguments, out);
    } else {
      answer(requestFromArguments(arguments), in, out);
    }
    checkWritten(out);
    return done;
  } catch (const BadInput& error) {
    return complain(error, badInput, err);
  } catch (const std::exception& error) {
    return complain(error, failed, err);
  }
}

}  // namespace velmora::app
