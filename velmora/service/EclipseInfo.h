#pragma once

#include <optional>
#include <string>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// One eclipse of the catalogue.
struct EclipseInfo {
  std::string key;                   ///< the code as it stands in the catalogue, for example "TSE"
  std::optional<std::string> title;  ///< the localised title; none for an unknown code
  Instant datetime{};                ///< the instant of greatest eclipse, to the minute
  bool isLunarEvent = false;         ///< whether the code contains "LE"

  friend bool operator==(const EclipseInfo&, const EclipseInfo&) = default;
};

/// The title of a code in the user's language; none for an unknown code.
std::optional<std::string> titleOfEclipse(const std::string& code);

}  // namespace velmora
