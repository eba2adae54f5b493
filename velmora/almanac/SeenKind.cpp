#include <algorithm>

#include <velmora/almanac/Eclipses.h>

namespace velmora::almanac {
namespace {

Instant contactOf(const LocalEclipse& eclipse, ContactName name) {
  const auto found = std::find_if(eclipse.contacts.begin(), eclipse.contacts.end(),
                                  [&](const Contact& contact) { return contact.name == name; });
  return found == eclipse.contacts.end() ? eclipse.maximum.at : found->moment.at;
}

}  // namespace

EclipseKind seenKind(const LocalEclipse& eclipse) {
  if (eclipse.kind != EclipseKind::total && eclipse.kind != EclipseKind::annular) return eclipse.kind;
  const bool isSolar = eclipse.body == Body::sun;
  const Instant begin = contactOf(eclipse, isSolar ? ContactName::C2 : ContactName::U2);
  const Instant end = contactOf(eclipse, isSolar ? ContactName::C3 : ContactName::U3);
  const bool isSeen = eclipse.isVisible && begin <= eclipse.visibleTo && end >= eclipse.visibleFrom;
  return isSeen ? eclipse.kind : EclipseKind::partial;
}

bool isSeenWithin(const LocalEclipse& eclipse, Instant from, Instant to) {
  return eclipse.isVisible && eclipse.visibleFrom < to && eclipse.visibleTo >= from;
}

}  // namespace velmora::almanac
