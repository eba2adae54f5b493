#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <tests/almanac/EclipseTesting.h>

namespace velmora::almanac {
namespace {

using namespace testing;

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

std::vector<ContactName> namesOf(const LocalEclipse& local) {
  std::vector<ContactName> names;
  for (const Contact& contact : local.contacts) names.push_back(contact.name);
  return names;
}

std::vector<ContactName> expectedNames(const LocalEclipse& local) {
  using enum ContactName;
  const bool isPartial = local.kind == EclipseKind::partial;
  if (local.body == Body::sun) return isPartial ? std::vector{C1, C4} : std::vector{C1, C2, C3, C4};
  if (local.kind == EclipseKind::penumbral) return {P1, P4};
  return isPartial ? std::vector{P1, U1, U4, P4} : std::vector{P1, U1, U2, U3, U4, P4};
}

bool isOfTheSky(const EclipseMoment& moment) {
  return std::abs(moment.altitude) <= 90 && moment.azimuth >= 0 && moment.azimuth < 360;
}

/// The contacts between which something of the eclipse can be seen at all.
std::pair<Instant, Instant> spanOf(const LocalEclipse& local) {
  using enum ContactName;
  const bool isPenumbral = local.kind == EclipseKind::penumbral;
  const auto first = local.body == Body::sun ? C1 : isPenumbral ? P1 : U1;
  const auto last = local.body == Body::sun ? C4 : isPenumbral ? P4 : U4;
  return {momentOf(local, first).at, momentOf(local, last).at};
}

void expectWellFormed(const LocalEclipse& local) {
  EXPECT_EQ(namesOf(local), expectedNames(local));
  EXPECT_TRUE(std::is_sorted(local.contacts.begin(), local.contacts.end(),
                             [](const Contact& a, const Contact& b) { return a.moment.at < b.moment.at; }));
  for (const Contact& contact : local.contacts) EXPECT_TRUE(isOfTheSky(contact.moment));
  EXPECT_TRUE(isOfTheSky(local.maximum));
  const auto middle = local.contacts.size() / 2;
  EXPECT_LE(local.contacts[middle - 1].moment.at, local.maximum.at);
  EXPECT_GE(local.contacts[middle].moment.at, local.maximum.at);
}

void expectTrueMeasures(const LocalEclipse& local) {
  EXPECT_GT(local.magnitude, 0);
  EXPECT_TRUE(local.obscuration >= 0 && local.obscuration <= 1) << local.obscuration;
  if (local.kind == EclipseKind::partial) {
    EXPECT_LT(local.magnitude, 1);
  }
  if (local.kind == EclipseKind::total) {
    EXPECT_GE(local.magnitude, 1);
  }
  if (local.body == Body::moon) {
    EXPECT_EQ(local.obscuration, 0);
    return;
  }
  EXPECT_NE(local.kind, EclipseKind::hybrid);
  if (local.kind == EclipseKind::total) {
    EXPECT_EQ(local.obscuration, 1);
  }
  if (local.kind == EclipseKind::annular) {
    EXPECT_DOUBLE_EQ(local.obscuration, local.magnitude * local.magnitude);
  }
  if (local.kind == EclipseKind::partial) {
    EXPECT_LT(local.obscuration, 1);
  }
}

void expectTrueVisibility(const LocalEclipse& local) {
  const auto [first, last] = spanOf(local);
  if (!local.isVisible) {
    EXPECT_FALSE(local.maximum.isUp);
    EXPECT_EQ(local.best, EclipseMoment{});
    EXPECT_EQ(local.visibleFrom, Instant{});
    EXPECT_EQ(local.visibleTo, Instant{});
    EXPECT_EQ(local.bestMagnitude, 0);
    return;
  }
  EXPECT_TRUE(local.best.isUp);
  EXPECT_LE(first, local.visibleFrom);
  EXPECT_LE(local.visibleFrom, local.best.at);
  EXPECT_LE(local.best.at, local.visibleTo);
  EXPECT_LE(local.visibleTo, last);
  EXPECT_GT(local.bestMagnitude, 0);
  EXPECT_LE(local.bestMagnitude, local.magnitude);
  if (local.maximum.isUp) {
    EXPECT_EQ(local.best, local.maximum);
    EXPECT_EQ(local.bestMagnitude, local.magnitude);
  } else {
    EXPECT_LT(local.best.altitude, 1.0);
  }
  // A body that is up at a contact of what is seen is seen from there on, or until then.
  for (const Contact& contact : local.contacts) {
    if (contact.moment.at == first) {
      EXPECT_EQ(contact.moment.isUp, local.visibleFrom == first);
    }
    if (contact.moment.at == last) {
      EXPECT_EQ(contact.moment.isUp, local.visibleTo == last);
    }
  }
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
      SCOPED_TRACE(std::to_string(unixSeconds(eclipse.maximum)) + " at " + std::to_string(place.latitude) +
                   " " + std::to_string(place.longitude));
      ASSERT_EQ(local->body, eclipse.body);
      expectWellFormed(*local);
      expectTrueMeasures(*local);
      expectTrueVisibility(*local);
      ++(eclipse.body == Body::sun ? solar : lunar);
      if (local->isVisible && !local->maximum.isUp) ++partlySeen;
      if (HasFailure()) return;
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

TEST(EclipseProperties, AMountainSeesTheEclipsedSunEarlier) {
  const Eclipse eclipse = eclipseOn(2021, 6, 10, Body::sun);
  const LocalEclipse low = localEclipse(eclipse, {40.71, -74.01});
  const LocalEclipse high = localEclipse(eclipse, {40.71, -74.01, 900});
  EXPECT_LT(high.visibleFrom, low.visibleFrom - Seconds(200));
  EXPECT_EQ(high.maximum, low.maximum);
}

TEST(EclipseProperties, NothingIsSeenFromWhatIsNoPlaceOrAtNoInstant) {
  const Eclipse eclipse = eclipseOn(2024, 4, 8, Body::sun);
  const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
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
