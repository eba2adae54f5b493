#include <velmora/astronomy/PositionData.h>

#include <velmora/astronomy/ClockReading.h>

namespace velmora {

std::string PositionData::formattedTimeText(bool use24Hour, bool shortForm) const {
  if (!shortForm) return textOfHour(hour, use24Hour);
  const double clockHour = clockReading(hour).hour;
  if (use24Hour) return twoDigits(clockHour);
  if (clockHour >= 12) return wholeText(clockHour > 12 ? clockHour - 12 : clockHour) + " pm";
  return wholeText(clockHour) + " am";
}

}  // namespace velmora
