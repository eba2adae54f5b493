#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/almanac/AlmanacTesting.h>
#include <tests/support/ErrorSummary.h>
#include <tests/support/PlainNumbers.h>
#include <tests/support/Tables.h>
#include <velmora/almanac/Events.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;
using namespace velmora::testing;

/// The letters of the kinds in the tables.
char letterOf(const Event& event) {
  constexpr std::array sun = {'R', 'S', 'T', 'C', 'c', 'N', 'n', 'A', 'a'};
  constexpr std::array moon = {'r', 's', 't'};
  const auto kind = static_cast<std::size_t>(event.kind);
  return event.body == Body::sun ? sun[kind] : moon.at(kind);
}

/// An event of the kind of that letter, seconds of UT1 after the start of its day.
struct Timed {
  char letter;
  double seconds;
  friend auto operator<=>(const Timed&, const Timed&) = default;
};

std::vector<Timed> tabulated(TableRow& row) {
  std::vector<Timed> events;
  for (std::string text; row.fields >> text;) events.push_back({text.front(), leadingNumber(text.substr(1))});
  std::sort(events.begin(), events.end());
  return events;
}

/// No event lies near the ends of a tabulated day, so that UT1 or UTC is the same for these.
std::vector<Timed> computed(const Place& place, Instant start, const EventChoice& choice) {
  const auto found = day(place, start, start + hours(24), choice);
  EXPECT_TRUE(found);
  std::vector<Timed> events;
  for (const Event& event : found->events) {
    const double rotation = ephemeris::universalMinusCoordinated(event.at);
    events.push_back({letterOf(event), (event.at - start).count() + rotation});
  }
  std::sort(events.begin(), events.end());
  return events;
}

bool areAlike(const std::vector<Timed>& a, const std::vector<Timed>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Timed& x, const Timed& y) { return x.letter == y.letter; });
}

std::string text(const std::vector<Timed>& events) {
  std::ostringstream out;
  for (const Timed& event : events) out << event.letter << event.seconds << ' ';
  return out.str();
}

/// Compares each day of a table, before and from 2050.
void compareWith(const std::string& table, ErrorSummary& before, ErrorSummary& after,
                 const EventChoice& choice = {}) {
  for (TableRow& row : tableRows(table)) {
    const Instant start = instantOf(row.kind);
    Place place;
    ASSERT_TRUE(row.fields >> place.latitude >> place.longitude) << row.where;
    const auto expected = tabulated(row), actual = computed(place, start, choice);
    EXPECT_TRUE(areAlike(expected, actual)) << row.where << "\n " << text(expected) << "\n " << text(actual);
    if (!areAlike(expected, actual)) continue;
    ErrorSummary& errors = start < Instant(sys_days(2050y / January / 1)) ? before : after;
    for (std::size_t k = 0; k < actual.size(); ++k) {
      errors.add(actual[k].seconds - expected[k].seconds, row.where + " " + actual[k].letter);
    }
  }
}

TEST(EventAccuracy, OfFiveThousandDaysUpTo66Degrees) {
  ErrorSummary before("events up to 66°, 1900 to 2049", " s", 1), after("from 2050", " s", 1);
  compareWith("almanac_events_middle.txt", before, after);
  before.print();
  after.print();
  EXPECT_GT(before.count() + after.count(), 50000);
  EXPECT_LE(before.rms(), 0.05);
  EXPECT_LE(after.rms(), 0.05);
}

TEST(EventAccuracy, OfTwoThousandDaysNearThePoles) {
  constexpr double anything = 1e9;  // a flat pass magnifies the second of arc
  ErrorSummary before("events from 66° to 89.9°, 1900 to 2049", " s", anything),
      after("from 2050", " s", anything);
  compareWith("almanac_events_polar.txt", before, after);
  before.print();
  after.print();
  EXPECT_GT(before.count() + after.count(), 8000);
  EXPECT_LE(before.rms(), 0.5);
  EXPECT_LE(after.rms(), 0.5);
}

TEST(EventAccuracy, BySecondOpinion) {
  ErrorSummary events("events up to 60°, 1973 to 2016, by PyEphem", " s", 2), later("later", " s", 2);
  compareWith("almanac_events_2.txt", events, later, {.transits = false});
  events.print();
  EXPECT_GT(events.count(), 3500);
  EXPECT_EQ(later.count(), 0);
  EXPECT_LE(events.rms(), 0.2);
}

}  // namespace
}  // namespace velmora::almanac
