#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include <velmora/almanac/Events.h>
#include <velmora/almanac/Positions.h>
#include <velmora/posters/Palette.h>
#include <velmora/posters/Poster.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Where Sun and Moon stand at a moment, degrees.
struct SkySample {
  Instant at{};
  double sun = 0;        ///< true altitude of its centre, which decides the daypart
  double sunHeight = 0;  ///< apparent altitudes, as they are seen
  double moonHeight = 0;
};

/// The sky of a place from noon to noon.
struct NightSky {
  Instant start{}, end{};
  almanac::Day events;
  std::vector<SkySample> samples;  ///< every few minutes and at each event, in time order
  almanac::Illumination moon;      ///< in the middle of the night

  /// None where the almanac does not cover the night.
  static std::optional<NightSky> of(const PosterPlace& place, std::chrono::year_month_day date);

  /// The true altitude of the Sun at a moment of the night, between samples.
  double sunAt(Instant at) const;
};

/// A stretch of one daypart.
struct DaypartStretch {
  Daypart part;
  almanac::Interval interval;
};

/// The dayparts of a night in time order, from event to event.
std::vector<DaypartStretch> daypartStretches(const NightSky& night);

/// How much the Moon lights the sky, 0 to 1: by its lit part and its height, degrees.
double moonlight(double litFraction, double moonHeight);

/// The share of the Moon's colour in the sky under a full Moon overhead.
inline constexpr double mostMoonlight = 0.55;

/// From noon of the evening to the next noon on the zone's clocks.
almanac::Interval nightOf(const TimeZone& zone, std::chrono::year_month_day evening);

}  // namespace velmora
