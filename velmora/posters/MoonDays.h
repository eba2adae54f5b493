#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Phases.h>
#include <velmora/almanac/Positions.h>
#include <velmora/posters/Poster.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The Moon of a day.
struct MoonDay {
  std::chrono::year_month_day date;
  Instant evening;                               ///< when the disc is as it is drawn
  almanac::Illumination moon;                    ///< at that moment
  std::optional<almanac::PhaseEvent> phase;      ///< the principal one of the day
  std::optional<almanac::LocalEclipse> eclipse;  ///< one that is seen from the place
};

/// Days one after the other at a place, without those that its clocks skipped.
struct MoonDays {
  /// On the clocks of the place: when the days' discs are as they are drawn.
  static constexpr std::chrono::hours evening{21};

  std::vector<MoonDay> days;

  /// From the first to the last; none where the almanac does not cover all of them.
  static std::optional<MoonDays> of(const PosterPlace& place, std::chrono::year_month_day first,
                                    std::chrono::year_month_day last);
  /// Those of the year.
  static std::optional<MoonDays> of(const PosterPlace& place, std::chrono::year year);

  /// The day's record; none if there is no such day.
  const MoonDay* find(std::chrono::year_month_day date) const;
};

}  // namespace velmora
