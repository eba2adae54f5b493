#include <velmora/service/LocalizedClockText.h>

#include <cstdint>
#include <optional>
#include <string_view>

#include <velmora/service/ShortTimeText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

std::optional<std::int64_t> twoDigits(std::string_view text) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.size() != 2 || !isDigit(text[0]) || !isDigit(text[1])) return std::nullopt;
  return (text[0] - '0') * 10 + (text[1] - '0');
}

/// Takes the mark "**" off a text of at least three characters, and the blank in front of it.
/// Kept: only the last character is looked at.
bool takeMark(std::string_view& text) {
  if (text.size() < 3 || text.back() != '*') return false;
  text.remove_suffix(2);
  if (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return true;
}

/// The minute of the day that "hh:mm AM" or "hh:mm PM" names; the hour after midnight may be written 00
/// or 12.
std::optional<std::int64_t> minuteOfDay(std::string_view text) {
  constexpr std::string_view form = "hh:mm AM";
  if (text.size() != form.size() || text[2] != ':' || text[5] != ' ') return std::nullopt;
  const auto hour = twoDigits(text.substr(0, 2)), minute = twoDigits(text.substr(3, 2));
  const std::string_view half = text.substr(6);
  if (!hour || !minute || *hour > 12 || *minute > 59 || (half != "AM" && half != "PM")) return std::nullopt;
  return (*hour % 12 + (half == "PM" ? 12 : 0)) * 60 + *minute;
}

}  // namespace

std::string localizedClockText(const std::string& text) {
  std::string_view time = text;
  const bool isMarked = takeMark(time);
  const auto minute = minuteOfDay(time);
  if (!minute) return text;
  return shortTimeText(*minute) + (isMarked ? "**" : "");
}

std::string localizedUnmarkedText(const std::string& text) {
  const auto minute = minuteOfDay(text);
  return minute ? shortTimeText(*minute) : text;
}

}  // namespace velmora
