#include <tests/resources/WritingScripts.h>

#include <algorithm>
#include <array>

namespace velmora {
namespace {

constexpr std::array scripts = {Script::latin,      Script::cyrillic, Script::arabic, Script::hebrew,
                                Script::devanagari, Script::japanese, Script::korean, Script::chinese};

constexpr std::u32string_view lowerCaseLetters =
    U"abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïñòóôõöùúûüýÿœßąćęłńóśźżğışабвгдеёжзийклмнопрстуфхцчшщъыьэюя";

bool isChineseCharacter(char32_t c) { return c >= U'\u4E00' && c <= U'\u9FFF'; }

bool isKana(char32_t c) { return c >= U'\u3041' && c <= U'\u30FF'; }

bool isLatinLetter(char32_t c) {
  const bool isAscii = (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
  return isAscii || (c >= U'\u00C0' && c <= U'\u024F');
}

}  // namespace

bool isLetterOf(Script script, char32_t c) {
  switch (script) {
    case Script::latin:
      return isLatinLetter(c);
    case Script::cyrillic:
      return c >= U'\u0400' && c <= U'\u04FF';
    case Script::arabic:
      return c >= U'\u0620' && c <= U'\u064A';
    case Script::hebrew:
      return c >= U'\u05D0' && c <= U'\u05EA';
    case Script::devanagari:
      return c >= U'\u0900' && c <= U'\u0963';
    case Script::japanese:
      return isKana(c) || isChineseCharacter(c);
    case Script::korean:
      return c >= U'\uAC00' && c <= U'\uD7A3';
    case Script::chinese:
      return isChineseCharacter(c);
  }
  return false;
}

bool isLetterOfAnyScript(char32_t character) {
  return std::any_of(scripts.begin(), scripts.end(),
                     [character](Script script) { return isLetterOf(script, character); });
}

bool isLowerCaseLetter(char32_t character) {
  return lowerCaseLetters.find(character) != std::u32string_view::npos;
}

std::u32string charactersOf(std::string_view utf8) {
  std::u32string characters;
  for (const char byte : utf8) {
    const auto bits = static_cast<unsigned char>(byte);
    const bool continues = (bits & 0xC0U) == 0x80U;
    if (continues) {
      characters.back() = (characters.back() << 6U) | (bits & 0x3FU);
    } else {
      const unsigned leading = bits < 0x80U ? 0x7FU : bits < 0xE0U ? 0x1FU : bits < 0xF0U ? 0x0FU : 0x07U;
      characters.push_back(bits & leading);
    }
  }
  return characters;
}

}  // namespace velmora
