#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <velmora/astronomy/RiseSetData.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/service/EclipseInfo.h>

namespace velmora {

/// What a host may put in place of the calendar's fixed rules for the sky of a day.

/// Rise, set and twilight of the instant's day at the place, whose zone is `secondsFromGMT` ahead then; the
/// twilight by its index: 0 civil, 1 nautical, 2 astronomical. Its fixed rule is `RiseAndSetCalc::Compute`.
using RiseSetSource = std::function<RiseSetData(Instant date, const GeoLocationData& location,
                                                std::int64_t secondsFromGMT, int twilight)>;

/// The earliest eclipse that is seen from the place on the instant's day in the zone; none without one. Its
/// fixed rule is that of `MoonPhaseData::eventsOnDate`.
using EclipseSource = std::function<std::shared_ptr<const EclipseInfo>(Instant date, const TimeZone& zone,
                                                                       const GeoLocationData& location)>;

}  // namespace velmora
