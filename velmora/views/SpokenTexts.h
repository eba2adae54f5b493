#pragma once

#include <cstdint>
#include <string>

#include <velmora/phases/PhaseItem.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/time/DateFormatter.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What a screen reader says of days at the selected place, in the user's language.
class SpokenDays {
 public:
  SpokenDays();

  /// The item's day, then its phase if that has a name: "Mar 25, 2024, Full Moon".
  std::string dateAndPhase(const PhaseItem& item) const;

  /// The same of a day of the service's selected month; the date alone where the month has no phases.
  std::string dateAndPhase(std::int64_t dayOfSelectedMonth) const;

  /// The day with its rises and sets, each body's in the order in which they happen: "Mar 25, 2024: moonset
  /// 6:40 AM, moonrise 7:21 PM, sunrise 5:52 AM, sunset 6:21 PM". A body that neither rises nor sets is said
  /// to be up or down all day.
  std::string riseAndSet(const RiseSetPhaseItem& item) const;

 private:
  std::string date(const PhaseItem& item) const;

  DateFormatter _dates;
};

/// "156° southeast"; degrees from north eastward, any number of turns.
std::string spokenBearing(double degrees);

/// "47° above the horizon"; degrees.
std::string spokenHeight(double degrees);

}  // namespace velmora
