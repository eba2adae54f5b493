// Any bytes are the arguments of the C interface's operations: each ends with a status it knows, fills no
// more than the room given, and what it fills is in order.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <velmora/c/velmora.h>

namespace {

constexpr std::size_t room = 16;
constexpr double longest = 40 * 86400.0;  // of what takes long over centuries

void require(bool condition) {
  if (!condition) std::abort();
}

class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : _rest(reinterpret_cast<const char*>(data), size) {}

  template <class Value>
  Value taken() {
    Value value{};
    const std::size_t size = _rest.size() < sizeof value ? _rest.size() : sizeof value;
    _rest.copy(reinterpret_cast<char*>(&value), size);
    _rest.remove_prefix(size);
    return value;
  }

  std::string rest() const { return std::string(_rest); }

 private:
  std::string_view _rest;
};

bool isKnown(velmora_status status) {
  require(status >= VELMORA_OK && status <= VELMORA_FAILED);
  require(status == VELMORA_OK || std::strlen(velmora_message()) > 0);
  return status == VELMORA_OK || status == VELMORA_MORE;
}

template <class Item>
void checkOrder(const Item (&items)[room], std::size_t count) {
  for (std::size_t i = 1; i < count && i < room; ++i) require(items[i - 1].at <= items[i].at);
}

void askEvents(const velmora_place& place, double from, double to, Bytes& bytes) {
  const auto choice = bytes.taken<std::uint32_t>() % 8;
  const auto convention = bytes.taken<velmora_convention>();
  velmora_event events[room];
  velmora_day day;
  std::size_t count = 0;
  if (isKnown(velmora_events(&place, from, to, choice, choice % 2 == 0 ? nullptr : &convention, &day, events,
                             room, &count))) {
    checkOrder(events, count);
    require(day.event_count == count && day.daylight >= 0 && day.daylight <= to - from + 1);
  }
  velmora_event event;
  const auto body = bytes.taken<std::int8_t>(), kind = bytes.taken<std::int8_t>();
  if (isKnown(velmora_next(&place, body, kind, from, nullptr, &event))) require(event.at > from);
  velmora_crossing crossings[room];
  if (isKnown(velmora_crossings(&place, body, bytes.taken<double>(), from, to, crossings, room, &count))) {
    checkOrder(crossings, count);
  }
}

void askSky(const velmora_place& place, double from, double to, Bytes& bytes) {
  const double at[] = {from, to, bytes.taken<double>()};
  velmora_position positions[3];
  velmora_illumination illuminations[3];
  if (isKnown(velmora_positions(&place, bytes.taken<std::int8_t>() % 3, at, 3, positions))) {
    for (const auto& position : positions) require(!(std::abs(position.altitude) > 90));
  }
  if (isKnown(velmora_illuminations(&place, at, 3, illuminations))) {
    for (const auto& lit : illuminations) require(!(lit.fraction < 0 || lit.fraction > 1));
  }
}

void askMonth(double from, double to) {
  velmora_moment moments[room];
  velmora_apsis apsides[room];
  std::size_t count = 0;
  if (isKnown(velmora_phases(from, to, moments, room, &count))) checkOrder(moments, count);
  if (isKnown(velmora_seasons(from, to, moments, room, &count))) checkOrder(moments, count);
  if (isKnown(velmora_apsides(from, to, apsides, room, &count))) checkOrder(apsides, count);
}

void askEclipses(const velmora_place& place, double from, double to, Bytes& bytes) {
  velmora_eclipse eclipses[room];
  velmora_local_eclipse local;
  std::size_t count = 0;
  if (isKnown(velmora_eclipses(from, to, eclipses, room, &count))) {
    for (std::size_t i = 0; i < count && i < room; ++i)
      isKnown(velmora_seen_from(&eclipses[i], &place, &local));
  }
  const auto made = bytes.taken<velmora_eclipse>();
  if (isKnown(velmora_seen_from(&made, &place, &local))) require(local.contact_count <= 6);
}

void askZone(const velmora_place& place, double at, Bytes& bytes) {
  const auto date = bytes.taken<velmora_date>();
  const velmora_date plausible = {1895 + std::abs(date.year % 210), 1 + std::abs(date.month % 12),
                                  1 + std::abs(date.day % 31)};
  velmora_zone* zone = nullptr;
  if (!isKnown(velmora_zone_open(bytes.rest().c_str(), &zone))) return;
  std::int32_t offset = 0;
  isKnown(velmora_zone_offset(zone, at, &offset));
  for (const velmora_date& day : {date, plausible}) {
    double start = 0, end = 0;
    if (isKnown(velmora_civil_day(zone, day, &start, &end))) require(end > start);
    velmora_rise_set_record record;
    isKnown(velmora_rise_set(&place, zone, day, 0, &record));
  }
  velmora_zone_close(zone);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes(data, size);
  const auto place = bytes.taken<velmora_place>();
  const double from = bytes.taken<double>(), length = bytes.taken<double>();
  const double to = std::abs(length) < longest ? from + length : from + 86400;
  askEvents(place, from, to, bytes);
  askSky(place, from, to, bytes);
  askMonth(from, to);
  askEclipses(place, from, to, bytes);
  askZone(place, from, bytes);
  return 0;
}
