#pragma once

#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <app/text/TextTable.h>
#include <velmora/astronomy/PositionData.h>

namespace velmora::app {

/// A position and the moment it holds for.
struct TimedPosition {
  Instant instant;
  PositionData position;
};

/// Where the body stands at the instant, by the zone's offset then.
TimedPosition positionAt(Instant instant, Body body, const Place& place);

/// Whether a body at that altitude counts as risen, by the rule of rise and set.
bool isRisen(const PositionData& position, Body body);

/// The instant and the record's properties by their names.
Json positionJson(const TimedPosition& sample);

/// One line a position: time, elevation, azimuth with the point of the compass.
std::string positionTable(const std::vector<TimedPosition>& samples, const Query& query);

/// "moon", "sun".
std::string bodyName(Body body);

/// "Moon", "Sun".
std::string bodyTitle(Body body);

/// "12.3° above the horizon, WSW".
std::string positionText(const PositionData& position);

}  // namespace velmora::app
