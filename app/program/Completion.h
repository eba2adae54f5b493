#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velmora::app {

/// What the completion of a shell asks: "--complete city BEGINNING", "--complete tz BEGINNING".
bool asksForCompletion(const std::vector<std::string>& arguments);

/// Writes the cities or zones that begin so, one per line.
void offer(const std::vector<std::string>& arguments, std::ostream& out);

}  // namespace velmora::app
