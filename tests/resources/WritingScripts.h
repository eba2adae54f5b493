#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The scripts that the shipped translations are written in. Japanese is kana and Chinese characters.
enum class Script { latin, cyrillic, arabic, hebrew, devanagari, japanese, korean, chinese };

/// Whether the character is a letter that texts in that script are written with.
bool isLetterOf(Script script, char32_t character);

/// Whether the character is a letter of any of the scripts.
bool isLetterOfAnyScript(char32_t character);

/// Whether the character is a lower-case letter of the Latin or Cyrillic alphabets of the shipped languages.
bool isLowerCaseLetter(char32_t character);

/// The characters of well-formed UTF-8.
std::u32string charactersOf(std::string_view utf8);

}  // namespace velmora
