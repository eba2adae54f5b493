#pragma once

namespace velmora::app {

/// Makes failing input and output the program's own business: a closed pipe and a file that may grow no more
/// become failed writes, not deaths, and where standard input, output or error is closed no other file is
/// opened in its place.
void prepareProcess();

}  // namespace velmora::app
