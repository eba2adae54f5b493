#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include <app/commands/Command.h>

namespace velmora::app {

/// Requests in JSON, one a line, each answered on a line of its own.
const Command& batchCommand();

/// Answers every line of the input until it ends. The request sets what all lines begin with; each line is
/// answered as if it were the first. Memory does not grow with the number or the length of the lines.
void serveBatch(const Request& request, std::istream& in, std::ostream& out);

/// The answer to one line, without the line's end: an error's text where the line cannot be answered.
std::string batchAnswer(std::string_view line);

}  // namespace velmora::app
