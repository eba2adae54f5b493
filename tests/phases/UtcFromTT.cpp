#include <array>

#include "Lunation.h"

namespace velmora::meeus {
namespace {

using namespace std::chrono;

// The first days that count one leap second more.
constexpr std::array leapSeconds{
    sys_days(2006y / January / 1), sys_days(2009y / January / 1), sys_days(2012y / July / 1),
    sys_days(2015y / July / 1),    sys_days(2017y / January / 1),
};
constexpr double ttMinusUtcIn2000 = 64.184;  // seconds
constexpr double julianDateOf1970 = 2440587.5;

}  // namespace

Instant utcFromTT(double julianDate) {
  Instant utc = instantFromUnixSeconds((julianDate - julianDateOf1970) * 86400 - ttMinusUtcIn2000);
  for (const sys_days since : leapSeconds) {
    if (utc - 1s >= since) utc -= 1s;
  }
  return utc;
}

}  // namespace velmora::meeus
