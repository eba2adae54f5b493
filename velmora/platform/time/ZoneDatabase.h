#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <velmora/platform/time/TimeZone.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What TimeZone needs of the system's zone database; the adapter in cctz/ implements it.
class ZoneDatabase {
 public:
  /// The rules of the zone with that identifier; none if the database has no such zone.
  static std::shared_ptr<const ZoneRules> find(std::string_view identifier);

  /// The identifier of the zone the system is set to; empty if it does not say.
  static std::string systemZoneIdentifier();
};

}  // namespace velmora
