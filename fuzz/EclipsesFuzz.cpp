// Any numbers are a place and a stretch of time: phases, apsides, seasons and eclipses lie in it and in
// order, an eclipse from the place is sound, and what is not valid is none.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <tests/almanac/EclipseFaults.h>
#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Phases.h>

namespace velmora {
namespace {

using namespace velmora::almanac;

constexpr double longestStretch = 400 * 86400.0;  // seconds, so that an input takes milliseconds

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

template <class Event>
void checkTimes(const std::vector<Event>& events, Instant Event::*at, Instant from, Instant to) {
  Instant last = from;
  for (const Event& event : events) {
    require(event.*at >= last && event.*at < to && ephemeris::covers(event.*at));
    last = event.*at;
  }
}

void checkSeen(const Eclipse& eclipse, const Place& place) {
  const auto local = seenFrom(eclipse, place);
  if (!isValid(place) || !ephemeris::covers(eclipse.maximum)) require(!local);
  if (local) require(testing::EclipseFaults::of(*local).empty());
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
  const auto begin = taken<double>(bytes), length = taken<double>(bytes);
  const Instant from = instantFromUnixSeconds(begin);
  const Instant to = from + Seconds(std::abs(length) <= longestStretch ? length : longestStretch);

  checkTimes(phases(from, to), &PhaseEvent::at, from, to);
  checkTimes(apsides(from, to), &Apsis::at, from, to);
  checkTimes(seasons(from, to), &SeasonEvent::at, from, to);
  const std::vector<Eclipse> found = eclipses(from, to);
  checkTimes(found, &Eclipse::maximum, from, to);
  for (const Eclipse& eclipse : found) checkSeen(eclipse, place);
  for (const Body body : {Body::sun, Body::moon}) {
    Eclipse any;
    any.body = body;
    any.maximum = from;
    checkSeen(any, place);
  }
  return 0;
}
