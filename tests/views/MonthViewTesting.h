#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Announcements.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/iPhoneCalendarView.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora::testing {

inline Instant utc(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 12) {
  return Calendar(TimeZone::fixed(0)).date({.year = year, .month = month, .day = day, .hour = hour});
}

inline std::shared_ptr<GeoLocationData> placeAt(double latitude, const std::string& zone = "Etc/UTC") {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(latitude, 0, "Somewhere", zone, 0, false);
  return place;
}

/// Sees three eclipses in July 2000: partial ones of the Sun on the 1st and the 30th, a total one of the Moon
/// on the 16th.
inline std::shared_ptr<GeoLocationData> honolulu() {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(21.31, -157.86, "Honolulu", "Pacific/Honolulu", 0, false);
  return place;
}

constexpr double greenwichLatitude = 51.48;

/// A month view of an English phone in Greenwich, with nothing left over from other tests.
class MonthViewTest : public ::testing::Test {
 protected:
  MonthViewTest() {
    startAfresh();
    view = std::make_shared<iPhoneCalendarView>();
    // Four rows: cells of 45 by 100 points in columns 53 points apart.
    view->setFrame({0, 0, 389, 450});
  }
  ~MonthViewTest() override { startAfresh(); }

  static void startAfresh() {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
    SettingsModel::setIsIPad(false);
  }

  static MoonPhaseData& service() { return MoonPhaseData::sharedInstance(); }

  static void select(Instant date, std::shared_ptr<GeoLocationData> place = placeAt(greenwichLatitude)) {
    service().SetSelectedLocation(std::move(place), date);
  }

  RecordingCanvas draw() {
    RecordingCanvas canvas;
    view->drawRect(canvas, view->bounds());
    EXPECT_TRUE(canvas.isBalanced());
    return canvas;
  }

  /// The lines drawn that begin so.
  std::vector<std::string> drawn(const std::string& beginning) {
    std::vector<std::string> found;
    const RecordingCanvas canvas = draw();
    for (const std::string& line : canvas.lines()) {
      if (line.starts_with(beginning)) found.push_back(line);
    }
    return found;
  }

  /// The texts drawn, without the seven of the header.
  std::vector<std::string> dayTexts() {
    std::vector<std::string> texts;
    for (const std::string& line : drawn("drawText ")) {
      const std::size_t begin = line.find('"') + 1;
      texts.push_back(line.substr(begin, line.find('"', begin) - begin));
    }
    texts.erase(texts.begin(), texts.begin() + 7);
    return texts;
  }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  ScopedDefaultTimeZone zone{"Etc/UTC"};
  ScopedNow now{utc(2026, 2, 24)};
  ScopedTextEngine textEngine{std::make_shared<FixedTextEngine>()};
  std::vector<std::string> announced;
  ScopedAnnouncementSink announcements{[this](const std::string& text) { announced.push_back(text); }};
  std::shared_ptr<iPhoneCalendarView> view;
};

}  // namespace velmora::testing
