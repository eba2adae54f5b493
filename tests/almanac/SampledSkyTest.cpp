#include <chrono>
#include <cmath>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <velmora/almanac/Events.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;

struct Spot {
  const char* zone;
  Place place;
};

constexpr Spot spots[] = {
    {"Arctic/Longyearbyen", {78.2232, 15.6267}},
    {"Europe/Oslo", {69.6492, 18.9553}},
    {"America/Nuuk", {76.5312, -68.7032}},
    {"America/Anchorage", {71.2906, -156.7886}},
    {"Asia/Anadyr", {66.5, 179.3}},
    {"Europe/Helsinki", {68.4167, 27.4167}},
    {"Atlantic/Reykjavik", {66.55, -18.0}},
    {"America/Anchorage", {64.8378, -147.7164}},
    {"Antarctica/McMurdo", {-77.8419, 166.6863}},
    {"Antarctica/Troll", {-72.0114, 2.535}},
    {"Antarctica/Palmer", {-64.7743, -64.0538}},
    {"Europe/London", {51.5083, -0.1253}},
    {"America/St_Johns", {47.5615, -52.7126}},
    {"America/New_York", {40.7128, -74.006}},
    {"Africa/Cairo", {30.0444, 31.2357}},
    {"America/Guayaquil", {-0.1807, -78.4678}},
    {"Pacific/Apia", {-13.8333, -171.7667}},
    {"Australia/Lord_Howe", {-31.5553, 159.0825}},
    {"Pacific/Chatham", {-43.95, -176.56}},
    {"UTC", {-90, 0}},
};

/// Names the test of the place.
void PrintTo(const Spot& spot, std::ostream* out) { *out << spot.zone << ',' << spot.place.latitude; }

/// Degrees by which the limb that rises first is above the horizon, as rise and set have it.
double overHorizon(const Position& position, Body body) {
  constexpr double refraction = 34.0 / 60, sun = 50.0 / 60;
  return position.altitude + (body == Body::sun ? sun : refraction + position.semidiameter);
}

/// Where a body is at instants of a row, told from the events and states of the days.
class ToldSky {
 public:
  explicit ToldSky(Body body) : _body(body) {}

  /// Appends what the day tells of the instants that lie within it.
  void add(const Day& day, const std::vector<Instant>& instants, std::vector<bool>& isUp) const {
    const AllDay allDay = _body == Body::sun ? day.sun : day.moon;
    std::vector<Event> passages;
    for (const Event& event : day.events)
      if (event.body == _body) passages.push_back(event);
    auto next = passages.begin();
    bool isUpNow = passages.empty() ? allDay == AllDay::up : passages.front().kind == EventKind::set;
    for (const Instant at : instants) {
      for (; next != passages.end() && next->at <= at; ++next) isUpNow = next->kind == EventKind::rise;
      isUp.push_back(isUpNow);
    }
  }

 private:
  Body _body;
};

std::vector<Instant> samplesOf(const Day& day, minutes step) {
  std::vector<Instant> instants;
  for (Instant at = day.start; at < day.end; at += step) instants.push_back(at);
  return instants;
}

/// Compares every hour of the days; how many were compared.
std::size_t compareHours(const Spot& spot, Body body, const std::vector<Day>& days) {
  constexpr double passing = 0.001;  // degrees: within that the sample lies on the event itself
  std::vector<Instant> instants;
  std::vector<bool> isUp;
  for (const Day& day : days) {
    const auto ofDay = samplesOf(day, hours(1));
    ToldSky(body).add(day, ofDay, isUp);
    instants.insert(instants.end(), ofDay.begin(), ofDay.end());
  }
  std::vector<Position> samples(instants.size());
  positions(spot.place, body, instants, samples);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double over = overHorizon(samples[i], body);
    const bool agrees = isUp[i] ? over > -passing : over < passing;
    EXPECT_TRUE(agrees) << spot.zone << ' ' << unixSeconds(instants[i]) << ": " << over
                        << "° over the horizon";
    if (!agrees) return i;
  }
  return samples.size();
}

class SampledSky : public ::testing::TestWithParam<Spot> {};

TEST_P(SampledSky, NoHourOf2000To2040ContradictsTheEventsOfItsDay) {
  const Spot& spot = GetParam();
  const auto found = days(spot.place, *TimeZone::named(spot.zone), 2000y / January / 1, 2040y / December / 31,
                          {.twilight = false, .transits = false});
  ASSERT_GE(found.size(), 14975U);  // Apia skipped a day
  const auto hours = compareHours(spot, Body::sun, found) + compareHours(spot, Body::moon, found);
  std::size_t allDay = 0;
  for (const Day& day : found) allDay += (day.sun != AllDay::no) + (day.moon != AllDay::no);
  std::cout << "  " << hours << " hours compared, " << allDay << " times up or down all day\n";
  EXPECT_GE(hours, 2 * 24 * 14975U);
  if (std::abs(spot.place.latitude) > 67) {
    EXPECT_GT(allDay, 6500U);
  }
}

INSTANTIATE_TEST_SUITE_P(Places, SampledSky, ::testing::ValuesIn(spots));

}  // namespace
}  // namespace velmora::almanac
