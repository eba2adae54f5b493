#pragma once

#include <string>

#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Events.h>
#include <velmora/almanac/Phases.h>
#include <velmora/almanac/Positions.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The name of a principal phase in the user's language.
std::string phaseName(almanac::PrincipalPhase phase);

/// The name of the Moon as it is lit: of the principal phase that falls into the interval, else of the one
/// between the phases before and after.
std::string moonName(const almanac::Illumination& moon, const almanac::Interval& interval);

/// What an eclipse is called.
std::string eclipseName(ephemeris::Body body, almanac::EclipseKind kind);

}  // namespace velmora
