#pragma once

#include <cstdlib>
#include <memory>
#include <string>

#include <velmora/platform/time/Locale.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The text that a function in JavaScript answered, in memory that it leaves to its caller.
inline std::string takeText(char* answered) {
  const std::unique_ptr<char, decltype(&std::free)> owned(answered, &std::free);
  return owned ? owned.get() : "";
}

/// The override of the clock habit as the functions in JavaScript take it: 12, 24 or 0 for none.
inline int hourCycleNumber(const Locale& locale) {
  if (!locale.hourCycle()) return 0;
  return *locale.hourCycle() == Locale::HourCycle::h24 ? 24 : 12;
}

}  // namespace velmora
