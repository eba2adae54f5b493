#pragma once

#include <string>

#include <app/place/Place.h>
#include <app/request/Request.h>
#include <app/text/Json.h>

namespace velmora::app {

/// A request with everything that an answer is made from.
struct Query {
  const Request& request;
  const Place& place;
  bool use24HourClock;  ///< in texts for people
  bool boldHeadings;    ///< the same; drawings are in color then
};

/// The answer to a command. While it is made, the process's default zone is the place's, and locale, clock
/// form and present are the request's.
struct Answer {
  std::string (*json)(const Query&);  ///< for programs: a JSON value on one line, without the line's end
  std::string (*text)(const Query&);  ///< for people
  std::string (*csv)(const Query&) = nullptr;  ///< of what is a table, as comma-separated values
};

/// An answer for programs that is made as a value.
template <Json (*make)(const Query&)>
std::string jsonLineOf(const Query& query) {
  return jsonLine(make(query));
}

}  // namespace velmora::app
