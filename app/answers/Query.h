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

/// The answer to a command, for programs and for people. While it is made, the process's default zone is the
/// place's, and locale, clock form and present are the request's.
struct Answer {
  Json (*json)(const Query&);
  std::string (*text)(const Query&);
};

}  // namespace velmora::app
