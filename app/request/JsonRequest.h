#pragma once

#include <string_view>

#include <app/request/Request.h>
#include <app/text/Json.h>

namespace velmora::app {

/// One line of a batch as a JSON value of small depth. Throws BadInput for what is no JSON, for what is
/// nested deeper than any request, and for numbers beyond a double's range.
Json jsonFromLine(std::string_view line);

/// The text of the member of that name in a line that holds an object, as it stands there.
std::string_view memberText(std::string_view line, std::string_view name);

/// Reads a request from `op`, a command's name, and the command's options by their names. `id` is left to the
/// caller. Throws BadInput.
Request requestFromJson(const Json& object);

}  // namespace velmora::app
