#include <velmora/foundation/GeoLocationData.h>

#include <gtest/gtest.h>

#include <cctz/zone_info_source.h>

#include <stdexcept>

constexpr const char* unreadableZone = "Antarctica/Vostok";

// Lets the zone database fail for one identifier; all others are found as usual.
namespace cctz_extension {
ZoneInfoSourceFactory zone_info_source_factory =
    [](const std::string& name,
       const std::function<std::unique_ptr<cctz::ZoneInfoSource>(const std::string&)>& usual) {
      if (name == unreadableZone) throw std::runtime_error("the zone file cannot be read");
      return usual(name);
    };
}  // namespace cctz_extension

// cctz does not free the zone it was reading when its source throws; that is not ours to report.
extern "C" const char* __lsan_default_suppressions() { return "leak:cctz::time_zone::Impl::LoadTimeZone"; }

namespace velmora {
namespace {

TEST(GeoLocationData, AZoneThatCannotBeReadIsNotAvailable) {
  GeoLocationData place;
  place.SetLocation(10, 20, "Somewhere", "Asia/Tokyo", 32400, false);
  place.SetLocation(1, 2, "Broken", unreadableZone, 600, false);
  EXPECT_EQ(place.timezoneText, "n/a");
  EXPECT_EQ(place.timezone, std::nullopt);
  EXPECT_EQ(place.timezoneId, unreadableZone);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(Instant()), 600);
}

}  // namespace
}  // namespace velmora
