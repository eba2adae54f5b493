#include <chrono>

#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::ephemeris {

using namespace std::chrono;

Instant firstInstant() { return sys_days(1900y / January / 1); }

Instant endInstant() { return sys_days(2101y / January / 1); }

bool covers(Instant instant) { return firstInstant() <= instant && instant < endInstant(); }

}  // namespace velmora::ephemeris
