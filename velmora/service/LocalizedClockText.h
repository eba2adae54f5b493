#pragma once

#include <string>

namespace [[gnu::visibility("hidden")]] velmora {

/// A clock text of the rise/set search ("05:48 AM", "00:15 AM", "11:58 PM **") in the user's own short time
/// style; the mark of the next day stays, glued to the time as "**". Every other text ("--", "--:--", a
/// 24-hour text) is returned as it is.
std::string localizedClockText(const std::string& text);

/// The same without a mark, for the Sun's texts: one with a mark is no clock time, and returned as it is.
std::string localizedUnmarkedText(const std::string& text);

}  // namespace velmora
