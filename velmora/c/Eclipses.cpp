#include <velmora/almanac/Eclipses.h>

#include <iterator>

#include <velmora/c/Answering.h>

using namespace velmora;
using namespace velmora::c;

namespace {

constexpr int kindsOfEclipses = 5;
constexpr velmora_eclipse_moment noMoment = {none, none, none, 0, -1};

velmora_eclipse eclipseOf(const almanac::Eclipse& eclipse) {
  return {secondsOf(eclipse.maximum),
          eclipse.magnitude,
          eclipse.gamma,
          static_cast<std::int32_t>(eclipse.body),
          static_cast<std::int32_t>(eclipse.kind),
          eclipse.saros,
          0};
}

almanac::Eclipse eclipseOf(const velmora_eclipse& eclipse) {
  return {.body = bodyOf(eclipse.body),
          .kind = static_cast<almanac::EclipseKind>(choiceOf(eclipse.kind, kindsOfEclipses, "kind")),
          .maximum = coveredInstant(eclipse.maximum, "maximum"),
          .magnitude = eclipse.magnitude,
          .gamma = eclipse.gamma,
          .saros = eclipse.saros};
}

velmora_eclipse_moment momentOf(const almanac::EclipseMoment& moment, int contact) {
  return {secondsOf(moment.at), moment.altitude, moment.azimuth, moment.isUp ? 1 : 0, contact};
}

velmora_local_eclipse localOf(const almanac::LocalEclipse& local) {
  velmora_local_eclipse out{};
  out.body = static_cast<std::int32_t>(local.body);
  out.kind = static_cast<std::int32_t>(local.kind);
  out.magnitude = local.magnitude;
  out.obscuration = local.body == almanac::Body::sun ? local.obscuration : none;
  out.maximum = momentOf(local.maximum, noMoment.contact);
  std::fill(std::begin(out.contacts), std::end(out.contacts), noMoment);
  for (const almanac::Contact& contact : local.contacts) {
    out.contacts[out.contact_count++] = momentOf(contact.moment, static_cast<int>(contact.name));
  }
  out.is_visible = local.isVisible ? 1 : 0;
  out.visible_from = local.isVisible ? secondsOf(local.visibleFrom) : none;
  out.visible_to = local.isVisible ? secondsOf(local.visibleTo) : none;
  out.best = local.isVisible ? momentOf(local.best, noMoment.contact) : noMoment;
  out.best_magnitude = local.isVisible ? local.bestMagnitude : none;
  return out;
}

}  // namespace

extern "C" {

velmora_status velmora_eclipses(double from, double to, velmora_eclipse* eclipses, size_t capacity,
                                size_t* count) {
  return answering([&] {
    const auto [start, end] = coveredInterval(from, to);
    return fill(almanac::eclipses(start, end), eclipses, capacity, count, "eclipses",
                [](const almanac::Eclipse& eclipse) { return eclipseOf(eclipse); });
  });
}

velmora_status velmora_seen_from(const velmora_eclipse* eclipse, const velmora_place* place,
                                 velmora_local_eclipse* local) {
  return answering([&] {
    velmora_local_eclipse& answer = given(local, "local");
    const auto seen = almanac::seenFrom(eclipseOf(given(eclipse, "eclipse")), placeOf(place));
    if (!seen) endWith(VELMORA_NONE, {"the eclipse does not touch the place"});
    answer = localOf(*seen);
    return VELMORA_OK;
  });
}

}  // extern "C"
