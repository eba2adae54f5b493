#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

#include <tests/phases/Places.h>
#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/service/MoonPhaseData.h>

/// What the tests of the service share: a fresh shared instance, places of the world, hand-made resources.
namespace velmora {

using Place = std::shared_ptr<GeoLocationData>;

inline Place placeAt(double latitude, double longitude, const std::string& zone) {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(latitude, longitude, zone, zone, 0, false);
  return place;
}

inline Place greenwich() { return placeAt(51.4779, 0.0, "GMT"); }
inline Place losAngeles() { return placeAt(34.0522, -118.2437, "America/Los_Angeles"); }
inline Place helsinki() { return placeAt(60.1699, 24.9384, "Europe/Helsinki"); }
inline Place sydney() { return placeAt(-33.8688, 151.2093, "Australia/Sydney"); }
inline Place tokyo() { return placeAt(35.6762, 139.6503, "Asia/Tokyo"); }

/// A place with a fixed offset from GMT and no named zone.
inline Place placeWithoutZone(std::int64_t secondsFromGMT) {
  return std::make_shared<GeoLocationData>(placeAtOffset(secondsFromGMT));
}

/// The instant at which clocks at the place show that date and time.
inline Instant localTime(const Place& place, std::int64_t year, std::int64_t month, std::int64_t day,
                         std::int64_t hour = 0, std::int64_t minute = 0) {
  return Calendar(place->calendarZone(place->customSecondsFromGMT))
      .date({.year = year, .month = month, .day = day, .hour = hour, .minute = minute});
}

/// Resources of one's own in place of the library's: nothing but what a test writes.
struct OwnResources {
  OwnResources() : bundle(folder.path()) {}

  void writeTable(std::int64_t year, const YearTable& table) const {
    folder.write("Data/" + std::to_string(year) + ".plist", propertyListOf(table));
  }
  void writeCatalogue(const std::string& text) const { folder.write("Data/events.txt", text); }

  TemporaryFolder folder;
  ScopedLibraryBundle bundle;
};

/// Starts each test with a fresh shared instance in an American UTC process with 12-hour texts.
class ServiceTest : public ::testing::Test {
 protected:
  ServiceTest() {
    SettingsModel::sharedInstance().setTimeFormat(0);
    MoonPhaseData::resetSharedInstance();
  }
  ~ServiceTest() override {
    MoonPhaseData::resetSharedInstance();
    SettingsModel::sharedInstance().setTimeFormat(_formerTimeFormat);
  }

  static MoonPhaseData& service() { return MoonPhaseData::sharedInstance(); }

  /// Selects noon of the day at the place.
  static void select(const Place& place, std::int64_t year, std::int64_t month, std::int64_t day) {
    service().SetSelectedLocation(place, localTime(place, year, month, day, 12));
  }

 private:
  const std::int64_t _formerTimeFormat = SettingsModel::sharedInstance().timeFormat();
  const ScopedLocale _locale{"en_US"};
  const ScopedDefaultTimeZone _zone{"UTC"};
};

}  // namespace velmora
