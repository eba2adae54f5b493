#pragma once

namespace velmora {

/// The library's version, major.minor as a number.
extern const double VelmoraVersionNumber;

/// The library's version as a zero-terminated text, "major.minor.patch".
extern const char VelmoraVersionString[];

}  // namespace velmora
