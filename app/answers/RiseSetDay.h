#pragma once

#include <optional>
#include <string>

#include <app/answers/Query.h>
#include <app/text/ClockText.h>
#include <velmora/astronomy/RiseSetData.h>

namespace velmora::app {

/// Where a body stays that neither rises nor sets on a day.
enum class AllDay { up, down };

/// One local day's rise, set and twilight at a place.
struct RiseSetDay {
  CivilDate date;
  RiseSetData record;
  std::optional<AllDay> sun;   ///< none if it rises or sets on the day
  std::optional<AllDay> moon;  ///< the same
};

/// The day's record, computed for 09:00 at the place with the zone's offset then.
RiseSetDay riseSetDay(CivilDate date, const Place& place, Twilight twilight);

/// As `riseSetDay` with the record's texts in the 24-hour form, the one that `dayEvent` reads.
RiseSetDay riseSetDayIn24Hours(CivilDate date, const Place& place, Twilight twilight);

/// The record's properties by their names, with `sunAllDay` and `moonAllDay`.
Json riseSetJson(const RiseSetDay& day);

/// "up all day", "down all day".
std::string allDayText(AllDay where);

/// From sunrise to sunset within the day, in minutes: all of it for a Sun that stays up. Of a day in 24
/// hours.
int daylightMinutes(const RiseSetDay& day);

/// "civil", "nautical", "astronomical".
std::string twilightName(Twilight twilight);

}  // namespace velmora::app
