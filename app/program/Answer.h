#pragma once

#include <string>

#include <app/request/Request.h>
#include <app/text/Json.h>

namespace velmora::app {

/// The command's answer for programs. Throws BadInput or Failure.
Json jsonAnswer(const Request& request);

/// The command's answer as it is printed: for people, or one line of JSON where the request wants that.
std::string printedAnswer(const Request& request, bool boldHeadings);

}  // namespace velmora::app
