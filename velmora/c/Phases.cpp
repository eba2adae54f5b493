#include <velmora/almanac/Phases.h>

#include <velmora/c/Answering.h>

using namespace velmora;
using namespace velmora::c;

namespace {

template <class Kind>
velmora_moment momentOf(Instant at, Kind kind) {
  return {secondsOf(at), static_cast<std::int32_t>(kind), 0};
}

}  // namespace

extern "C" {

velmora_status velmora_phases(double from, double to, velmora_moment* phases, size_t capacity,
                              size_t* count) {
  return answering([&] {
    const auto [start, end] = coveredInterval(from, to);
    return fill(almanac::phases(start, end), phases, capacity, count, "phases",
                [](const almanac::PhaseEvent& event) { return momentOf(event.at, event.phase); });
  });
}

velmora_status velmora_seasons(double from, double to, velmora_moment* seasons, size_t capacity,
                               size_t* count) {
  return answering([&] {
    const auto [start, end] = coveredInterval(from, to);
    return fill(almanac::seasons(start, end), seasons, capacity, count, "seasons",
                [](const almanac::SeasonEvent& event) { return momentOf(event.at, event.season); });
  });
}

velmora_status velmora_apsides(double from, double to, velmora_apsis* apsides, size_t capacity,
                               size_t* count) {
  return answering([&] {
    const auto [start, end] = coveredInterval(from, to);
    return fill(almanac::apsides(start, end), apsides, capacity, count, "apsides",
                [](const almanac::Apsis& apsis) {
                  return velmora_apsis{secondsOf(apsis.at), apsis.distance, apsis.isPerigee ? 1 : 0, 0};
                });
  });
}

}  // extern "C"
