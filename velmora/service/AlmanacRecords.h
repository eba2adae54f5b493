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
/// after the sunrise; where there is none after it, the first has 1440 minutes more. The length of the day is
/// set minus rise, 1440 for a Sun that is up or down all day. In years and at places that the almanac does
/// not cover both bodies are down and nothing is seen.
class AlmanacRecords {
 public:
  static constexpr std::int64_t beforeTheDay = -1;   ///< minutes of what is up when the day begins
  static constexpr std::int64_t afterTheDay = 1441;  ///< minutes of what is up when it ends, or down all day

  /// `height`: of the eye, metres above the horizon around, 0 to 100,000.
  static RiseSetSource riseSetSource(double height = 0);

  /// The first eclipse of which something is seen on the day. Its key and title are those of what is seen
  /// from the place, its instant that at which most of it is seen.
  static EclipseSource eclipseSource(double height = 0);

  /// "TSE" and the like, as in the catalogue.
  static std::string eclipseCode(almanac::Body body, almanac::EclipseKind kind);
};

}  // namespace velmora
