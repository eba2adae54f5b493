#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <vector>

#include <velmora/almanac/Events.h>
#include <velmora/posters/Poster.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// A night from noon to noon as its clocks show it: values at each half hour. Hours that the clocks
/// repeat count once, of hours that they skip there is the moment after the change.
struct NightRow {
  std::chrono::year_month_day evening;
  almanac::Interval interval;
  std::vector<double> sun;   ///< true altitude of the centre, degrees
  std::vector<double> moon;  ///< of the upper limb above the horizon, 34′ of refraction included, degrees
  std::vector<double> moonlight;  ///< on the sky, 0 to 1; it fades where twilight outshines it
  bool isStep = false;            ///< whether the clocks changed since the row before
};

/// The nights of a year.
struct DarknessYear {
  /// From noon to noon.
  static constexpr std::size_t valuesOfRow = 24 * 2 + 1;

  std::vector<NightRow> nights;
  /// In each month the longest time for which it is fully dark without the Moon; none where it never is.
  std::array<std::optional<almanac::Interval>, 12> darkest;

  /// None where the almanac does not cover all of it.
  static std::optional<DarknessYear> of(const PosterPlace& place, std::chrono::year year);
};

}  // namespace velmora
