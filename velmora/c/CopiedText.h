#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {

/// Writes the text into the room, zero-terminated; one that does not fit is cut before a character of UTF-8.
template <std::size_t size>
void copyText(std::string_view text, char (&room)[size]) {
  std::size_t length = std::min(text.size(), size - 1);
  const auto continues = [&](std::size_t place) { return (text[place] & 0xC0) == 0x80; };
  while (length < text.size() && length > 0 && continues(length)) --length;
  std::fill(text.copy(room, length) + room, room + size, '\0');
}

}  // namespace c
}  // namespace velmora
