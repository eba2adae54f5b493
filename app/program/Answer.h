#pragma once

#include <string>

#include <app/request/Request.h>

namespace velmora::app {

/// The command's answer for programs, a JSON value on one line without the line's end, for the default place
/// where the request does not name one. Throws BadInput or Failure.
std::string jsonAnswer(const Request& request);

/// The command's answer as it is printed: for people, or for programs where the request wants that; for the
/// user's usual place where it does not name one.
std::string printedAnswer(const Request& request, bool boldHeadings);

}  // namespace velmora::app
