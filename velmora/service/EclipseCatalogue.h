#pragma once

#include <map>
#include <memory>
#include <string_view>

#include <velmora/platform/time/Instant.h>
#include <velmora/service/EclipseInfo.h>

namespace velmora {

/// The eclipses by instant.
using EclipseCatalogue = std::map<Instant, std::shared_ptr<const EclipseInfo>>;

/// Reads a catalogue: one eclipse a line, "MM/dd/yyyy HH:mm,CODE" in UTC. Blank lines are passed over; every
/// other line that is no record is logged as "Invalid entry" and skipped. Of two eclipses at one instant the
/// later line stays. A carriage return stays part of the code.
EclipseCatalogue readEclipseCatalogue(std::string_view text);

}  // namespace velmora
