#pragma once

#include <string>
#include <string_view>

#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/Locale.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The locale's own pattern for the two styles; empty if both are none. An overridden clock habit replaces
/// the time's part of it.
std::string patternOfStyles(const Locale& locale, DateFormatter::Style dateStyle,
                            DateFormatter::Style timeStyle);

/// The pattern for reading texts in which a number may have one digit where the pattern has two: "d-M-yyyy"
/// for "dd-MM-yyyy". Fields that touch each other keep their width.
std::string readingPattern(std::string_view pattern);

}  // namespace velmora
