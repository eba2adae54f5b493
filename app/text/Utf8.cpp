#include <app/text/Utf8.h>

#include <algorithm>

namespace velmora::app {
namespace {

constexpr char32_t firstPrintable = 0x20, deleteCharacter = 0x7F, endOfSecondControls = 0xA0;
constexpr char32_t firstSurrogate = 0xD800, lastSurrogate = 0xDFFF, lastCharacter = 0x10FFFF;

/// The character at the beginning of the text and its bytes; no bytes where there is none.
struct Character {
  char32_t code = 0;
  std::size_t bytes = 0;
};

Character firstOf(std::string_view text) {
  struct Form {
    unsigned mask, mark;
    char32_t least;
  };
  constexpr Form forms[] = {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};
  const unsigned lead = static_cast<unsigned char>(text.front());
  const auto* form = std::find_if(std::begin(forms), std::end(forms),
                                  [&](const Form& known) { return (lead & known.mask) == known.mark; });
  const auto bytes = static_cast<std::size_t>(form - std::begin(forms)) + 1;
  if (form == std::end(forms) || text.size() < bytes) return {};
  char32_t code = lead & ~form->mask;
  for (const char byte : text.substr(1, bytes - 1)) {
    if (!continuesCharacter(byte)) return {};
    code = (code << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  const bool isSurrogate = code >= firstSurrogate && code <= lastSurrogate;
  return code < form->least || code > lastCharacter || isSurrogate ? Character() : Character{code, bytes};
}

/// A break of the line or of the paragraph, or a turn of the writing direction that lasts beyond the text.
bool turnsLine(char32_t code) {
  constexpr char32_t lineSeparator = 0x2028, lastOverride = 0x202E, firstIsolate = 0x2066,
                     endOfIsolate = 0x2069;
  return (code >= lineSeparator && code <= lastOverride) || (code >= firstIsolate && code <= endOfIsolate);
}

bool isControl(char32_t code) {
  return code < firstPrintable || (code >= deleteCharacter && code < endOfSecondControls) || turnsLine(code);
}

}  // namespace

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const Character character = firstOf(text);
    if (character.bytes == 0) return false;
    text.remove_prefix(character.bytes);
  }
  return true;
}

bool hasControls(std::string_view text) {
  while (!text.empty()) {
    const Character character = firstOf(text);
    if (character.bytes > 0 && isControl(character.code)) return true;
    text.remove_prefix(std::max<std::size_t>(character.bytes, 1));
  }
  return false;
}

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const Character character = firstOf(text);
    const std::size_t bytes = std::max<std::size_t>(character.bytes, 1);
    if (character.bytes == 0) {
      shown += "\uFFFD";
    } else {
      shown += isControl(character.code) ? "?" : text.substr(0, bytes);
    }
    text.remove_prefix(bytes);
  }
  return shown;
}

}  // namespace velmora::app
