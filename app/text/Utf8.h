#pragma once

#include <string>
#include <string_view>

namespace velmora::app {

/// Whether a byte of UTF-8 is another byte of the character before.
constexpr bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Whether the text is UTF-8.
bool isUtf8(std::string_view text);

/// Whether the text holds a control character: nothing to see, but an order to a terminal.
bool hasControls(std::string_view text);

/// What can be shown of the text: a question mark for a control character, U+FFFD for bytes that are not
/// UTF-8.
std::string printable(std::string_view text);

}  // namespace velmora::app
