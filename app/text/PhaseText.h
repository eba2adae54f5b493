#pragma once

#include <cstdint>
#include <string>

namespace velmora::app {

/// The name of a phase, 0 to 7, in the language of the current locale; empty for any other number.
std::string phaseName(std::int64_t phase);

/// The phase, 0 to 7, as a small picture, two columns of a terminal wide: as seen from north of the equator
/// or mirrored as from south of it.
std::string phaseGlyph(std::int64_t phase, bool fromTheSouth);

}  // namespace velmora::app
