#pragma once

#include <optional>
#include <vector>

#include <velmora/almanac/Events.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// When it is fully dark: the Sun's centre is below −18° and the Moon is down. In time order; the events must
/// hold twilight.
std::vector<almanac::Interval> darkHours(const almanac::Day& day);

/// The longest of them; none of none.
std::optional<almanac::Interval> longest(const std::vector<almanac::Interval>& stretches);

/// What the stretches have in common with the interval.
std::vector<almanac::Interval> within(const std::vector<almanac::Interval>& stretches,
                                      const almanac::Interval& interval);

}  // namespace velmora
