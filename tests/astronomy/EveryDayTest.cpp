#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <ostream>

#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

constexpr std::int64_t minutesPerDay = 1440;

/// The minutes that a 24-hour text names; none for "--" and "--:--".
std::optional<std::int64_t> minutesOf(const std::string& text) {
  if (text.front() == '-') return std::nullopt;
  return std::stoll(text.substr(0, 2)) * 60 + std::stoll(text.substr(3, 2));
}

bool isMarked(const std::string& text) { return text.ends_with(" **"); }

/// Text and minutes name the same time on the clock; a text without a time goes with −1.
void expectAgreement(const std::string& text, std::int64_t minutes, const std::string& where) {
  const auto written = minutesOf(text);
  ASSERT_EQ(written.has_value(), minutes >= 0) << where << " " << text;
  if (written) {
    ASSERT_EQ(*written % minutesPerDay, minutes % minutesPerDay) << where << " " << text;
  }
}

/// Both texts of a pair are "--" together, and "--:--" stands beside a time.
void expectPair(const std::string& rise, const std::string& set, const std::string& where) {
  ASSERT_EQ(rise == "--", set == "--") << where;
  ASSERT_FALSE(rise == "--:--" && set == "--:--") << where;
}

void expectInRange(std::int64_t minutes, const std::string& where) {
  ASSERT_GE(minutes, -1) << where;
  ASSERT_LE(minutes, 2 * minutesPerDay) << where;
}

void expectConsistent(const RiseSetData& day, const std::string& where) {
  expectPair(day.sunRiseText, day.sunSetText, where);
  expectPair(day.twilightBeginText, day.twilightEndText, where);
  expectPair(day.moonRiseText, day.moonSetText, where);
  expectAgreement(day.sunRiseText, day.sunRiseMinutesFromMidnight, where);
  expectAgreement(day.sunSetText, day.sunSetMinutesFromMidnight, where);
  expectAgreement(day.moonRiseText, day.moonRiseMinutesFromMidnight, where);
  expectAgreement(day.moonSetText, day.moonSetMinutesFromMidnight, where);
  for (const std::int64_t minutes : {day.sunRiseMinutesFromMidnight, day.sunSetMinutesFromMidnight,
                                     day.moonRiseMinutesFromMidnight, day.moonSetMinutesFromMidnight}) {
    expectInRange(minutes, where);
  }
  if (day.moonSetMinutesFromMidnight != minutesPerDay) {  // "24:00" and "00:00 **" are the same minute
    ASSERT_EQ(isMarked(day.moonSetText), day.moonSetMinutesFromMidnight > minutesPerDay) << where;
  }
  const std::int64_t set = day.sunSetMinutesFromMidnight < 0 ? minutesPerDay : day.sunSetMinutesFromMidnight;
  ASSERT_EQ(day.dayLengthMinutes, set - std::max<std::int64_t>(day.sunRiseMinutesFromMidnight, 0)) << where;
}

/// Away from the polar circles a day has its sunrise, noon in between and a set within the day after.
void expectOrdinarySun(const RiseSetData& day, const std::string& where) {
  ASSERT_GE(day.sunRiseMinutesFromMidnight, 0) << where;
  ASSERT_GT(day.dayLengthMinutes, 5 * 60) << where;
  ASSERT_LT(day.dayLengthMinutes, 19 * 60) << where;
}

void expectDirection(const PositionData& position, const std::string& where) {
  ASSERT_LE(std::abs(position.altitude), 90) << where;
  ASSERT_GE(position.azimuth, 0) << where;
  ASSERT_LE(position.azimuth, 360) << where;
}

struct Place {
  const char* name;
  double latitude, longitude;
  std::int64_t offset;
};

void PrintTo(const Place& place, std::ostream* out) { *out << place.name; }

class EveryDayFrom2000To2040 : public ::testing::TestWithParam<Place> {};

TEST_P(EveryDayFrom2000To2040, HasAConsistentRecordAndDirectionsInRange) {
  const ScopedTimeFormat format(clock24);
  const auto& [name, latitude, longitude, offset] = GetParam();
  const GeoLocationData place = placeAt(latitude, longitude);
  int days = 0;
  for (Instant noon = utc(2000, 1, 1, 12); noon < utc(2041, 1, 1); noon += Seconds(86400)) {
    const std::string where = std::string(name) + ", day " + std::to_string(days);
    const RiseSetData day = Calc::Compute(noon, place, offset, days % 3);
    expectConsistent(day, where);
    if (std::abs(latitude) < 60) expectOrdinarySun(day, where);
    const Instant moment = noon + Seconds(days * 7919 % 86400);
    expectDirection(Calc::ComputeSunPosition(moment, place, offset), where);
    expectDirection(Calc::ComputeMoonPosition(moment, place, offset), where);
    if (HasFatalFailure()) return;
    ++days;
  }
  EXPECT_EQ(days, 14976);
}

INSTANTIATE_TEST_SUITE_P(Places, EveryDayFrom2000To2040,
                         ::testing::Values(Place{"San Francisco", 37.78549082, -122.39184303, -28800},
                                           Place{"Kathmandu", 27.7172, 85.324, 20700},
                                           Place{"Chatham", -43.95, -176.56, 45900},
                                           Place{"Reykjavik", 64.1466, -21.9426, 0},
                                           Place{"Longyearbyen", 78.2232, 15.6267, 3600}),
                         [](const auto& instance) {
                           std::string name = instance.param.name;
                           name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
                           return name;
                         });

}  // namespace
}  // namespace velmora
