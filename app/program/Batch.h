#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

#include <app/request/Request.h>

namespace velmora::app {

/// Answers every line of the input, a request in JSON, on a line of its own, until the input ends. The
/// request sets what all lines begin with; each line is answered as if it were the first. Memory does not
/// grow with the number or the length of the lines.
void serveBatch(const Request& request, std::istream& in, std::ostream& out);

/// Below which lines may draw pictures; none: nowhere.
using PictureFolder = std::optional<std::string>;

/// The answer to one line, without the line's end: an error's text where the line cannot be answered. It
/// begins with the line's own `id`, byte for byte.
std::string batchAnswer(std::string_view line, const PictureFolder& folder = std::nullopt);

}  // namespace velmora::app
