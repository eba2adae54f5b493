#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <velmora/almanac/Eclipses.h>

namespace velmora::testing {

/// What is wrong with an eclipse as it is from a place, by what holds of every one; empty if nothing is.
class EclipseFaults {
 public:
  static std::string of(const almanac::LocalEclipse& local) {
    for (const auto& faultOf : {ofContacts, ofMeasures, ofVisibility}) {
      if (std::string fault = faultOf(local); !fault.empty()) return fault;
    }
    return {};
  }

 private:
  using LocalEclipse = almanac::LocalEclipse;
  using EclipseMoment = almanac::EclipseMoment;
  using EclipseKind = almanac::EclipseKind;
  using ContactName = almanac::ContactName;

  static std::vector<ContactName> namesOf(const LocalEclipse& local) {
    using enum almanac::ContactName;
    const bool isPartial = local.kind == EclipseKind::partial;
    if (local.body == almanac::Body::sun)
      return isPartial ? std::vector{C1, C4} : std::vector{C1, C2, C3, C4};
    if (local.kind == EclipseKind::penumbral) return {P1, P4};
    return isPartial ? std::vector{P1, U1, U4, P4} : std::vector{P1, U1, U2, U3, U4, P4};
  }

  static bool isOfTheSky(const EclipseMoment& moment) {
    return std::abs(moment.altitude) <= 90 && moment.azimuth >= 0 && moment.azimuth < 360;
  }

  static std::string ofContacts(const LocalEclipse& local) {
    const auto& contacts = local.contacts;
    std::vector<ContactName> names;
    for (const almanac::Contact& contact : contacts) names.push_back(contact.name);
    if (names != namesOf(local)) return "contacts that are not those of its kind";
    if (!std::is_sorted(contacts.begin(), contacts.end(),
                        [](const auto& a, const auto& b) { return a.moment.at < b.moment.at; })) {
      return "contacts out of order";
    }
    if (!std::all_of(contacts.begin(), contacts.end(), [](const auto& c) { return isOfTheSky(c.moment); }) ||
        !isOfTheSky(local.maximum)) {
      return "a moment that is not of the sky";
    }
    const auto middle = contacts.size() / 2;
    if (contacts[middle - 1].moment.at > local.maximum.at || contacts[middle].moment.at < local.maximum.at) {
      return "a maximum that is not in the middle";
    }
    return {};
  }

  static std::string ofMeasures(const LocalEclipse& local) {
    const bool isSolar = local.body == almanac::Body::sun;
    if (!(local.magnitude > 0)) return "no magnitude";
    if (local.kind == EclipseKind::partial && local.magnitude >= 1) return "a partial one that is total";
    if (local.kind == EclipseKind::total && local.magnitude < 1) return "a total one that is partial";
    if (local.kind == EclipseKind::annular && local.magnitude >= 1) return "an annular one that is total";
    if (local.kind == EclipseKind::hybrid) return "a hybrid one at a place";
    if (isSolar && local.kind == EclipseKind::penumbral) return "a penumbral one of the Sun";
    if (!isSolar && local.kind == EclipseKind::annular) return "an annular one of the Moon";
    if (!(local.obscuration >= 0 && local.obscuration <= 1)) return "an obscuration out of range";
    if (!isSolar && local.obscuration != 0) return "an obscured Moon";
    if (isSolar && (local.kind == EclipseKind::total) != (local.obscuration == 1)) {
      return "an obscuration that is not that of its kind";
    }
    return {};
  }

  /// Of what can be seen: all of a solar eclipse, the partial and total phase of a lunar one.
  static std::pair<EclipseMoment, EclipseMoment> endsOf(const LocalEclipse& local) {
    const std::size_t ofPenumbra =
        local.body == almanac::Body::moon && local.kind != EclipseKind::penumbral ? 1 : 0;
    return {local.contacts[ofPenumbra].moment, local.contacts[local.contacts.size() - 1 - ofPenumbra].moment};
  }

  static std::string ofVisibility(const LocalEclipse& local) {
    const auto [first, last] = endsOf(local);
    if (!local.isVisible) {
      const bool isBlank = local.best == EclipseMoment{} && local.visibleFrom == Instant{} &&
                           local.visibleTo == Instant{} && local.bestMagnitude == 0;
      if (!isBlank) return "something seen of what is not visible";
      return first.isUp || last.isUp || local.maximum.isUp ? "up and not visible" : "";
    }
    if (!local.best.isUp) return "best seen below the horizon";
    if (!(first.at <= local.visibleFrom && local.visibleFrom <= local.best.at &&
          local.best.at <= local.visibleTo && local.visibleTo <= last.at)) {
      return "best seen out of the time in which it is visible";
    }
    // A shadow goes on to widen a little where the Moon is nearest to its axis.
    constexpr double widening = 1e-6;
    if (!(local.bestMagnitude > 0 && local.bestMagnitude <= local.magnitude + widening)) {
      return "more seen than there is";
    }
    if (local.maximum.isUp && (local.best != local.maximum || local.bestMagnitude != local.magnitude)) {
      return "a maximum that is seen and not the best";
    }
    if (first.isUp != (local.visibleFrom == first.at) || last.isUp != (local.visibleTo == last.at)) {
      return "up at an end of it and not visible there";
    }
    return {};
  }
};

}  // namespace velmora::testing
