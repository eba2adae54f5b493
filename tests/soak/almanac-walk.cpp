// Walks every day of 1900 to 2100 at twelve towns and fails at the first that does not hold together:
//   almanac-walk

#include <chrono>
#include <iostream>
#include <string>

#include <tests/almanac/DaysInARow.h>
#include <velmora/almanac/Events.h>

namespace {

using namespace std::chrono;
using namespace velmora;

/// The number of days; 0 if one is faulty.
std::size_t walk(const testing::Town& town) {
  testing::DaysInARow row;
  const auto days =
      almanac::days(town.place, *TimeZone::named(town.zone), 1900y / January / 2, 2100y / December / 30);
  for (const almanac::Day& day : days) {
    const std::string fault = row.fault(day);
    if (fault.empty()) continue;
    std::cerr << town.zone << ' ' << unixSeconds(day.start) << ": " << fault << '\n';
    return 0;
  }
  return days.size();
}

}  // namespace

int main() {
  constexpr std::size_t leastDays = 73'400;
  for (const testing::Town& town : testing::towns) {
    const std::size_t count = walk(town);
    std::cout << town.zone << ": " << count << " days\n";
    if (count < leastDays) return 1;
  }
  return 0;
}
