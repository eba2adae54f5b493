#include <chrono>
#include <sstream>
#include <string>
#include <vector>

#include <tests/threads/ManyThreads.h>
#include <velmora/almanac/Events.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;

struct Question {
  Place place;
  Instant start;
};

std::vector<Question> questions() {
  std::vector<Question> all;
  for (const Place& place : {Place{51.5, -0.1}, Place{-13.8, -171.8}, Place{69.6, 19.0}, Place{-90, 0}}) {
    for (int month = 0; month < 6; ++month) {
      all.push_back({place, Instant(sys_days(2024y / January / 10)) + hours(24 * 30 * month)});
    }
  }
  return all;
}

std::string answer(const Question& question) {
  const auto& [place, start] = question;
  std::ostringstream text;
  text << std::hexfloat;
  const auto day = almanac::day(place, start, start + hours(36));
  for (const Event& event : day->events) text << unixSeconds(event.at) << ' ' << event.azimuth << '\n';
  for (const Crossing& crossing : crossings(place, Body::moon, 5, start, start + hours(36))) {
    text << unixSeconds(crossing.at) << '\n';
  }
  text << position(place, Body::moon, start)->altitude << illumination(place, start)->tilt;
  return text.str();
}

TEST(ManyThreads, AskTheAlmanacTogether) { test::expectAnswersOfOneThread(questions(), answer); }

TEST(ManyThreads, ShareThePlacesOfAGrid) {
  std::vector<Place> places;
  for (int k = 0; k < 2000; ++k) places.push_back({k * 0.09 - 90, k * 0.18 - 180});
  const Instant start = sys_days(2024y / June / 1);
  const auto daylight = [&](const Executor& run) {
    std::vector<double> seconds(places.size());
    forEachPlace(
        places, start, start + hours(24),
        [&](std::size_t place, const Day& day) { seconds[place] = day.daylight.count(); }, run);
    return seconds;
  };
  EXPECT_EQ(daylight(onThreads(4)), daylight({}));
}

}  // namespace
}  // namespace velmora::almanac
