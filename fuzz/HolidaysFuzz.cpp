// Any bytes are a calendar file of holidays: its days lie in the year, in order, each with a name, or it is
// bad input.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <app/drawing/libical/HolidayFile.h>
#include <app/text/Errors.h>

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora;
  constexpr std::chrono::year year{2026};
  try {
    std::chrono::year_month_day former = year / 1 / 1;
    for (const CalendarNote& note : app::holidaysIn(std::string(reinterpret_cast<const char*>(data), size),
                                                    "fuzz", year, TimeZone::fixed(0))) {
      require(note.date.ok() && note.date.year() == year && note.date >= former && !note.text.empty());
      former = note.date;
    }
  } catch (const app::BadInput&) {
    return 0;
  }
  return 0;
}
