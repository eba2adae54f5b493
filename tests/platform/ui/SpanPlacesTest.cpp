#include <velmora/platform/ui/SpanPlaces.h>

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

constexpr auto origin = SpanPlaces::origin;

class SpanPlacesTest : public ::testing::Test {
 protected:
  static SpanPlaces::Edge start(std::size_t span) { return SpanPlaces::startOf(span); }
  static SpanPlaces::Edge end(std::size_t span) { return SpanPlaces::endOf(span); }

  void demandLength(std::size_t span, double length) { places.demand(end(span), start(span), length); }

  SpanPlaces places{4};
};

TEST_F(SpanPlacesTest, TheOriginStandsAtZeroAndEverythingElseIsOpen) {
  EXPECT_EQ(places.place(origin), 0);
  EXPECT_EQ(places.place(start(0)), std::nullopt);
  EXPECT_EQ(places.place(end(3)), std::nullopt);
}

TEST_F(SpanPlacesTest, AnEdgeStandsAsFarBehindAnotherAsDemanded) {
  places.demand(start(0), origin, 5);
  demandLength(0, 20);
  places.demand(origin, start(1), 7);
  EXPECT_EQ(places.place(start(0)), 5);
  EXPECT_EQ(places.place(end(0)), 25);
  EXPECT_EQ(places.place(start(1)), -7);
}

TEST_F(SpanPlacesTest, ADemandReachesWhatWasTiedBefore) {
  places.demand(start(1), end(0), 3);
  places.demand(start(2), end(1), 3);
  demandLength(0, 10);
  demandLength(1, 10);
  EXPECT_EQ(places.place(start(2)), std::nullopt);
  places.demand(start(0), origin, 100);
  EXPECT_EQ(places.place(start(2)), 126);
}

TEST_F(SpanPlacesTest, ALargeGroupIsMovedBySmallOnesAndTheOtherWayRound) {
  for (std::size_t span = 0; span < 4; ++span) demandLength(span, 10);
  places.demand(start(1), end(0), 0);
  places.demand(start(2), end(1), 0);
  places.demand(end(2), start(3), 0);
  places.demand(origin, start(2), 1);
  EXPECT_EQ(places.place(start(0)), -21);
  EXPECT_EQ(places.place(end(3)), 19);
}

TEST_F(SpanPlacesTest, WhatContradictsAnEarlierDemandGivesWay) {
  places.demand(start(0), origin, 5);
  places.demand(start(0), origin, 50);
  demandLength(0, 10);
  places.demand(end(0), origin, 90);
  EXPECT_EQ(places.place(start(0)), 5);
  EXPECT_EQ(places.place(end(0)), 15);
}

TEST_F(SpanPlacesTest, ANegativeLengthIsAContradiction) {
  demandLength(0, -1);
  places.demand(start(0), origin, 10);
  places.demand(end(0), origin, 4);
  EXPECT_EQ(places.place(end(0)), std::nullopt);
  places.demand(end(0), origin, 10);
  EXPECT_EQ(places.place(end(0)), 10) << "nothing is no contradiction";
}

TEST_F(SpanPlacesTest, ALengthThatFollowsToBeNegativeIsOneToo) {
  places.demand(start(1), start(0), 10);  // the second begins behind the first
  places.demand(end(1), end(0), 0);
  demandLength(0, 4);
  EXPECT_EQ(places.place(start(0)), std::nullopt);
  demandLength(0, 12);
  places.demand(start(0), origin, 0);
  EXPECT_EQ(places.place(start(1)), 10);
  EXPECT_EQ(places.place(end(1)), 12);
}

TEST_F(SpanPlacesTest, RoundingIsNoContradiction) {
  places.demand(start(0), origin, 0.1 + 0.2);
  places.demand(end(0), origin, 0.3);
  ASSERT_TRUE(places.place(end(0)));
  EXPECT_EQ(*places.place(end(0)), 0.3);
}

TEST_F(SpanPlacesTest, NumbersThatAreNotFiniteDemandNothing) {
  places.demand(start(0), origin, std::numeric_limits<double>::quiet_NaN());
  places.demand(start(0), origin, std::numeric_limits<double>::infinity());
  EXPECT_EQ(places.place(start(0)), std::nullopt);
}

}  // namespace
}  // namespace velmora
