#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <app/place/Place.h>
#include <app/request/DrawingRequest.h>
#include <app/text/CivilTime.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/Locale.h>

namespace velmora::app {

struct Command;

using ephemeris::Body;
/// In the order of the rise/set search's twilight index, then all three.
enum class Twilight { civil, nautical, astronomical, all };
enum class ColorChoice { automatic, always, never };

/// One question to the program, read from the command line or from a line of a batch. What was not given is
/// none; each value is valid by itself, but how values go together is seen where they are used.
struct Request {
  const Command* command = nullptr;
  std::vector<std::string_view> given;  ///< the names of the options that were given

  PlaceChoice place;

  std::optional<CivilDate> date;
  std::optional<ClockTime> time;
  std::optional<CivilDate> from;
  std::optional<CivilDate> to;
  std::optional<std::chrono::year_month> month;
  std::optional<std::chrono::year> year;
  std::optional<Instant> now;

  std::optional<std::int64_t> phase;  ///< a principal one, by the library's number

  Twilight twilight = Twilight::civil;
  Body body = Body::moon;
  bool transits = false;
  std::optional<double> degrees;  ///< an elevation above the horizon
  std::chrono::minutes step{60};  ///< between two places of a path
  bool grid = false;              ///< a month also as a calendar of weeks
  bool allDay = false;            ///< events of a calendar as days
  bool forgets = false;           ///< drops the user's own place

  DrawingRequest drawing;

  std::optional<Locale::HourCycle> clock;
  std::optional<Locale> locale;
  bool json = false;
  bool csv = false;
  ColorChoice color = ColorChoice::automatic;
  bool help = false;
  bool version = false;
};

}  // namespace velmora::app
