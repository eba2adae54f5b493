#include <velmora/c/Answering.h>

#include <velmora/c/CopiedText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {
namespace {

constexpr std::size_t longestMessage = 256;

/// A message that does not fit is cut.
char (&keptMessage() noexcept)[longestMessage] {
  thread_local char message[longestMessage] = {};
  return message;
}

void checkNumber(double value, const char* name) {
  if (!std::isfinite(value)) endWith(VELMORA_BAD_ARGUMENT, {name, " is no finite number"});
}

[[noreturn]] void refuseYears(const char* name) {
  endWith(VELMORA_OUT_OF_YEARS, {name, " lies outside the years 1900 to 2100"});
}

}  // namespace

velmora_status refuse(velmora_status status, Words message) noexcept {
  char joined[2 * longestMessage];
  std::size_t length = 0;
  for (const std::string_view word : message) length += word.copy(joined + length, sizeof joined - length);
  copyText({joined, length}, keptMessage());
  return status;
}

void checkRange(double value, int low, int high, const char* name) {
  if (value >= low && value <= high) return;
  endWith(VELMORA_BAD_ARGUMENT, {name, " lies outside ", std::to_string(low), " to ", std::to_string(high)});
}

int choiceOf(int number, int choices, const char* name) {
  if (number >= 0 && number < choices) return number;
  endWith(VELMORA_BAD_ARGUMENT,
          {name, " is ", std::to_string(number), "; it is one of 0 to ", std::to_string(choices - 1)});
}

almanac::Place placeOf(const velmora_place* place) {
  const velmora_place& taken = given(place, "place");
  checkRange(taken.latitude, -90, 90, "latitude");
  checkRange(taken.longitude, -180, 180, "longitude");
  checkRange(taken.height, 0, 100'000, "height");
  return {taken.latitude, taken.longitude, taken.height};
}

ephemeris::Body bodyOf(int number) {
  return choiceOf(number, 2, "body") == VELMORA_SUN ? ephemeris::Body::sun : ephemeris::Body::moon;
}

Instant coveredInstant(double at, const char* name) {
  checkNumber(at, name);
  const Instant instant = instantFromUnixSeconds(at);
  if (!ephemeris::covers(instant)) refuseYears(name);
  return instant;
}

std::pair<Instant, Instant> coveredInterval(double from, double to) {
  const Instant start = coveredInstant(from, "from");
  checkNumber(to, "to");
  const Instant end = instantFromUnixSeconds(to);
  if (end < start) endWith(VELMORA_BAD_ARGUMENT, {"to lies before from"});
  if (end > ephemeris::endInstant()) refuseYears("to");
  return {start, end};
}

}  // namespace c
}  // namespace velmora

extern "C" const char* velmora_message(void) { return velmora::c::keptMessage(); }
