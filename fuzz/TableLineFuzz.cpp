// Any text is a line of a month's table or none, and a line's event lies in that month.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <velmora/phases/TableLine.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace std::chrono_literals;
  const std::string_view line(reinterpret_cast<const char*>(data), size);
  const auto event = velmora::readTableLine(line, 2024, 2);
  if (!event) return 0;
  const velmora::Instant first = std::chrono::sys_days(2024y / 2 / 1);
  const velmora::Instant end = std::chrono::sys_days(2024y / 3 / 1);
  if (event->instant < first || event->instant >= end) std::abort();
  if (event->phase < -1 || event->phase > 3) std::abort();
  return 0;
}
