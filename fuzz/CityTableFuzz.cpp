// Any bytes are a table of cities, after a line with a spelling: what is asked of it ends, and no answer is
// more than the table has.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <velmora/cities/CityTable.h>

static void require(bool condition) {
  if (!condition) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t limit = 5;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string_view spelling = text.substr(0, text.find('\n'));
  const std::string_view bytes = text.substr(std::min(size, spelling.size() + 1));
  const auto table = velmora::CityTable::fromBytes(std::string(bytes));

  require(table.size() <= bytes.size());
  require(table.named(spelling).size() <= bytes.size());
  require(table.matches(spelling, limit).size() <= std::min(limit, table.size()));
  require(table.nearest(spelling, limit).size() <= std::min(limit, table.size()));
  require(table.zones().size() <= bytes.size());
  require(table.zoneToday(spelling).size() <= std::max<std::size_t>(spelling.size(), 255));
  require(table.city(table.size()) == velmora::City());
  return 0;
}
