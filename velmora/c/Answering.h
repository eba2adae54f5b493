#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <velmora/almanac/Place.h>
#include <velmora/c/velmora.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {

// How an operation of the C interface checks what it is given and ends; not for other folders.

constexpr double none = std::numeric_limits<double>::quiet_NaN();

/// A message in pieces.
using Words = std::initializer_list<std::string_view>;

/// Keeps the message for this thread and returns the status.
velmora_status refuse(velmora_status status, Words message) noexcept;

/// Ends the operation before its answer: a status and what was wrong.
[[noreturn]] void endWith(velmora_status status, Words message);

/// Runs an operation: its status, or that with which it ended or failed. No exception leaves.
velmora_status run(velmora_status (*operation)(void*), void* context) noexcept;
template <class Operation>
velmora_status answering(Operation&& operation) noexcept {
  return run([](void* context) { return (*static_cast<std::remove_reference_t<Operation>*>(context))(); },
             &operation);
}

/// Refuses a null pointer of that name.
template <class Value>
Value& given(Value* pointer, const char* name) {
  if (!pointer) endWith(VELMORA_BAD_ARGUMENT, {name, " is a null pointer"});
  return *pointer;
}

/// Refuses a list with room but without a place for it.
template <class Item>
void checkRoom(const Item* items, std::size_t capacity, const char* name) {
  if (!items && capacity > 0) endWith(VELMORA_BAD_ARGUMENT, {name, " is a null pointer"});
}

/// Refuses a number outside [low, high], and what is no number.
void checkRange(double value, int low, int high, const char* name);

/// Refuses a number of a list of choices that has `choices` of them.
int choiceOf(int number, int choices, const char* name);

/// The place; refuses one with a number out of its range.
almanac::Place placeOf(const velmora_place* place);

ephemeris::Body bodyOf(int number);

/// The instant; refuses what is no number, and one outside the years that are answered.
Instant coveredInstant(double at, const char* name);

/// The ends of an interval; refuses one that runs backwards. The end of the years answered may be its end.
std::pair<Instant, Instant> coveredInterval(double from, double to);

inline double secondsOf(Instant instant) { return unixSeconds(instant); }

/// Fills a list with as many converted items as it has room for, and counts all of them.
template <class Source, class Item, class Convert>
velmora_status fill(const Source& source, Item* items, std::size_t capacity, std::size_t* count,
                    const char* name, Convert&& convert) {
  std::size_t& counted = given(count, "count");
  checkRoom(items, capacity, name);
  const std::size_t filled = std::min(source.size(), capacity);
  for (std::size_t i = 0; i < filled; ++i) items[i] = convert(source[i]);
  counted = source.size();
  if (filled == source.size()) return VELMORA_OK;
  return refuse(VELMORA_MORE, {"the list is longer than the room given for it"});
}

}  // namespace c
}  // namespace velmora
