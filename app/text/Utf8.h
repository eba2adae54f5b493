#pragma once

namespace velmora::app {

/// Whether a byte of UTF-8 is a control character of ASCII: nothing to see, but an order to a terminal.
constexpr bool isControl(char byte) {
  constexpr unsigned char firstPrinting = ' ';
  constexpr char deleteCharacter = 0x7F;
  return static_cast<unsigned char>(byte) < firstPrinting || byte == deleteCharacter;
}

/// Whether a byte of UTF-8 is another byte of the character before.
constexpr bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace velmora::app
