#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::app {

/// The whole program: reads the arguments (without the program's name), answers on `out`, says on `err` in
/// one line what was wrong. Answers the exit status: 0 done, 1 a resource or the output failed, 2 bad input.
/// With a status of 2 nothing has been written to `out`.
int run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace velmora::app
