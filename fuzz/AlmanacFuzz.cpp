// Any numbers are a place, a stretch of time, an altitude and a convention: days hold together, crossings and
// positions lie in the sky, and what is not valid is none.

#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <tests/almanac/DaysInARow.h>
#include <velmora/almanac/Events.h>
#include <velmora/almanac/Positions.h>

namespace velmora {
namespace {

using namespace velmora::almanac;

constexpr double longestStretch = 40 * 86400.0;  // seconds, so that an input takes milliseconds

void require(bool condition) {
  if (!condition) std::abort();
}

template <class Value>
Value taken(std::string_view& bytes) {
  Value value{};
  const std::size_t size = bytes.size() < sizeof value ? bytes.size() : sizeof value;
  bytes.copy(reinterpret_cast<char*>(&value), size);
  bytes.remove_prefix(size);
  return value;
}

bool isIn(double value, double low, double high) { return value >= low && value <= high; }

void checkDays(const Place& place, Instant start, Instant end, const EventChoice& choice,
               const Convention& convention) {
  const auto whole = day(place, start, end, choice, convention);
  const Instant middle = start + (end - start) / 2;
  const auto first = day(place, start, middle, choice, convention);
  const auto second = day(place, middle, end, choice, convention);
  if (!whole || !first || !second) return require(!whole || middle <= start || middle >= end);
  testing::DaysInARow row;
  require(row.fault(*first).empty() && row.fault(*second).empty());
  std::vector<Event> events = first->events;
  events.insert(events.end(), second->events.begin(), second->events.end());
  require(whole->events == events);
  if (events.size() > 12) events.resize(12);
  for (const Event& event : events) {
    if (event.at == start) continue;
    const auto again = next(place, event.body, event.kind, start, convention);
    require(again && again->at > start && again->at <= event.at);
  }
}

void checkCrossings(const Place& place, Body body, double altitude, Instant start, Instant end) {
  Instant last = start;
  for (const Crossing& crossing : crossings(place, body, altitude, start, end)) {
    require(crossing.at >= last && crossing.at < end);
    require(isIn(crossing.azimuth, 0, 360));
    last = crossing.at;
  }
}

void checkPosition(const Place& place, Body body, Instant at) {
  const auto found = position(place, body, at);
  require(found.has_value() == (isValid(place) && ephemeris::covers(at)));
  if (!found) return;
  require(isIn(found->azimuth, 0, 360) && isIn(found->altitude, -90, 90));
  require(isIn(found->apparentAltitude, found->altitude, 90));
  require(isIn(found->semidiameter, 0.2, 0.3));
  const auto light = illumination(place, at);
  require(light && isIn(light->fraction, 0, 1) && isIn(light->tilt, 0, 360));
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora;
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  Place place;
  place.latitude = taken<double>(bytes);
  place.longitude = taken<double>(bytes);
  place.height = taken<double>(bytes);
  const Instant start = instantFromUnixSeconds(taken<double>(bytes));
  const Instant end = start + Seconds(std::fmod(taken<double>(bytes), longestStretch));
  const auto altitude = taken<double>(bytes);
  Convention convention;
  convention.horizonRefraction = taken<double>(bytes);
  convention.sunSemidiameter = taken<double>(bytes);
  const auto choices = taken<std::uint8_t>(bytes);
  const EventChoice choice{(choices & 1) != 0, (choices & 2) != 0};
  convention.limb = static_cast<Convention::Limb>((choices >> 2) % 3);
  const Body body = (choices & 16) != 0 ? Body::sun : Body::moon;

  checkDays(place, start, end, choice, convention);
  checkCrossings(place, body, altitude, start, end);
  checkPosition(place, body, start);
  return 0;
}
