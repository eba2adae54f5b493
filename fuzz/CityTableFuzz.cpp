// Any text is a table of cities, after a line with a spelling: cities have a name and lie on the Earth, each
// is found by its own name, and a spelling without a city has a short list of near ones.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include <app/place/CityTable.h>

static void require(bool condition) {
  if (!condition) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t longestName = 100;
  std::istringstream text(std::string(reinterpret_cast<const char*>(data), size));
  std::string spelling;
  std::getline(text, spelling);
  const velmora::app::CityTable table(text);

  for (const velmora::app::City& city : table.cities()) {
    require(!city.name.empty() && city.name.size() <= city.zone.size());
    require(std::abs(city.latitude) <= 90 && std::abs(city.longitude) <= 180);
    require(city.name.size() > longestName || table.find(city.name) != nullptr);
  }
  const velmora::app::City* found = table.find(spelling);
  require(found == nullptr || !table.cities().empty());
  require(table.nearestCities(spelling).empty() == table.cities().empty());
  require(!table.nearestZones(spelling).empty());
  return 0;
}
