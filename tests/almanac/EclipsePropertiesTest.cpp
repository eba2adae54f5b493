#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include <tests/almanac/EclipseFaults.h>
#include <tests/almanac/EclipseTesting.h>
#include <tests/support/NotFinite.h>
#include <velmora/almanac/Events.h>

namespace velmora::almanac {
namespace {

using namespace velmora::testing;

std::vector<Place> placesOfTheWorld() {
  std::vector<Place> places{{90, 0}, {-90, 0}, {90, 180}, {0, -180}, {0, 180}, {67.5, 20, 900}};
  for (double latitude = -85; latitude <= 85; latitude += 17) {
    for (double longitude = -180; longitude < 180; longitude += 30) places.push_back({latitude, longitude});
  }
  return places;
}

const std::vector<Eclipse>& someEclipses() {
  static const std::vector<Eclipse> found = eclipses(utc(1995, 1, 1), utc(2015, 1, 1));
  return found;
}

TEST(EclipseProperties, HoldEverywhereOnEarth) {
  int solar = 0, lunar = 0, untouched = 0, partlySeen = 0;
  for (const Eclipse& eclipse : someEclipses()) {
    for (const Place& place : placesOfTheWorld()) {
      const auto local = seenFrom(eclipse, place);
      if (!local) {
        ASSERT_EQ(eclipse.body, Body::sun);
        ++untouched;
        continue;
      }
      ASSERT_EQ(local->body, eclipse.body);
      ASSERT_EQ(EclipseFaults::of(*local), "")
          << unixSeconds(eclipse.maximum) << " at " << place.latitude << ' ' << place.longitude;
      ++(eclipse.body == Body::sun ? solar : lunar);
      if (local->isVisible && !local->maximum.isUp) ++partlySeen;
    }
  }
  std::cout << "  " << solar << " solar and " << lunar << " lunar eclipses at places, " << untouched
            << " of places untouched, " << partlySeen << " seen without their maximum\n";
  EXPECT_GT(solar, 1000);
  EXPECT_GT(lunar, 5000);
  EXPECT_GT(untouched, 1000);
  EXPECT_GT(partlySeen, 300);
}

TEST(EclipseProperties, LunarEclipsesAreTheSameAtEveryPlaceButForTheHorizon) {
  const Eclipse eclipse = eclipseOn(2018, 7, 27, Body::moon);
  const LocalEclipse here = localEclipse(eclipse, {52.5, 13.4}),
                     there = localEclipse(eclipse, {-33.9, 151.2});
  EXPECT_EQ(here.kind, eclipse.kind);
  EXPECT_NEAR(here.magnitude, eclipse.magnitude, 1e-6);
  EXPECT_NEAR((here.maximum.at - eclipse.maximum).count(), 0, 0.05);
  ASSERT_EQ(here.contacts.size(), there.contacts.size());
  for (std::size_t i = 0; i < here.contacts.size(); ++i) {
    EXPECT_EQ(here.contacts[i].moment.at, there.contacts[i].moment.at);
    EXPECT_NE(here.contacts[i].moment.altitude, there.contacts[i].moment.altitude);
  }
}

TEST(EclipseProperties, NoPlaceSeesMoreThanTheWholeEarth) {
  for (const Eclipse& eclipse : someEclipses()) {
    for (const Place& place : placesOfTheWorld()) {
      const auto local = seenFrom(eclipse, place);
      if (!local || !local->maximum.isUp) continue;
      EXPECT_LE(local->magnitude, eclipse.magnitude + 0.002) << unixSeconds(eclipse.maximum);
      if (eclipse.kind == EclipseKind::partial) {
        EXPECT_EQ(local->kind, EclipseKind::partial);
      }
      if (eclipse.kind == EclipseKind::annular) {
        EXPECT_NE(local->kind, EclipseKind::total);
      }
      if (eclipse.kind == EclipseKind::total) {
        EXPECT_NE(local->kind, EclipseKind::annular);
      }
    }
  }
}

TEST(EclipseProperties, WhatIsSeenBeginsAndEndsWithRiseAndSetOfTheDay) {
  int compared = 0;
  for (const Eclipse& eclipse : eclipses(utc(2014, 1, 1), utc(2015, 1, 1))) {
    for (const Place& place : placesOfTheWorld()) {
      const auto local = seenFrom(eclipse, place);
      if (!local || !local->isVisible) continue;
      const auto sky = day(place, eclipse.maximum - Seconds(20000), eclipse.maximum + Seconds(20000));
      ASSERT_TRUE(sky);
      for (const Instant end : {local->visibleFrom, local->visibleTo}) {
        const auto isContact = [&](const Contact& contact) { return contact.moment.at == end; };
        if (std::any_of(local->contacts.begin(), local->contacts.end(), isContact)) continue;
        const EventKind kind = end == local->visibleFrom ? EventKind::rise : EventKind::set;
        EXPECT_TRUE(std::any_of(sky->events.begin(), sky->events.end(),
                                [&](const Event& event) {
                                  return event.body == eclipse.body && event.kind == kind &&
                                         std::abs((event.at - end).count()) < 0.1;
                                }))
            << unixSeconds(end) << " at " << place.latitude << ' ' << place.longitude;
        ++compared;
      }
    }
  }
  EXPECT_GT(compared, 50);
}

TEST(EclipseProperties, AMountainSeesTheEclipsedSunEarlier) {
  const Eclipse eclipse = eclipseOn(2021, 6, 10, Body::sun);
  const LocalEclipse low = localEclipse(eclipse, {40.71, -74.01});
  const LocalEclipse high = localEclipse(eclipse, {40.71, -74.01, 900});
  EXPECT_LT(high.visibleFrom, low.visibleFrom - Seconds(200));
  EXPECT_EQ(high.maximum, low.maximum);
}

TEST(EclipseProperties, NothingIsSeenFromWhatIsNoPlaceOrAtNoInstant) {
  const Eclipse eclipse = eclipseOn(2024, 4, 8, Body::sun);
  for (const Place& place : {Place{nan, 0}, Place{0, nan}, Place{0, 0, nan}, Place{infinity, 0},
                             Place{90.1, 0}, Place{0, -180.1}, Place{0, 0, -1}, Place{0, 0, infinity}}) {
    EXPECT_FALSE(seenFrom(eclipse, place));
  }
  for (const Body body : {Body::sun, Body::moon}) {
    for (const double seconds : {nan, infinity, -infinity, 1e300, unixSeconds(utc(1899, 12, 31)),
                                 unixSeconds(utc(2101, 1, 1)), unixSeconds(utc(1900, 1, 1)), 0.0}) {
      Eclipse none;
      none.body = body;
      none.maximum = instantFromUnixSeconds(seconds);
      EXPECT_FALSE(seenFrom(none, {})) << seconds;
    }
  }
}

}  // namespace
}  // namespace velmora::almanac
