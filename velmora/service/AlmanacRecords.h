#pragma once

#include <string>

#include <velmora/almanac/Eclipses.h>
#include <velmora/service/RecordSources.h>

namespace velmora {

/// The almanac's days and eclipses written as the calendar's records, for hosts whose views shall show what
/// is seen: `service.setRiseSetSource(AlmanacRecords::riseSetSource())`.
///
/// A rise/set record holds the events of the civil day and none of another: minutes and texts are those that
/// the place's clocks show, to the nearest minute of the day. What does not happen has an empty text and
/// minutes that lie outside the day: −1 for a body that is up when it begins, 1441 for one that is up when it
/// ends, and both 1441 for one that is down all day. Of several of a kind it is the first, of sunsets that
/// after the sunrise.
class AlmanacRecords {
 public:
  static constexpr std::int64_t beforeTheDay = -1;   ///< minutes of what is up when the day begins
  static constexpr std::int64_t afterTheDay = 1441;  ///< minutes of what is up when it ends, or down all day

  /// `height`: of the eye, metres above the horizon around.
  static RiseSetSource riseSetSource(double height = 0);

  /// Something of the eclipse is seen on the day; key and title are those of what is seen from the place, the
  /// instant that at which most of it is.
  static EclipseSource eclipseSource(double height = 0);

  /// "TSE" and the like, as in the catalogue.
  static std::string eclipseCode(almanac::Body body, almanac::EclipseKind kind);
};

}  // namespace velmora
