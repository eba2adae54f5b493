#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include <velmora/platform/time/Locale.h>

namespace velmora {

/// A text of the almanac in the language of the current locale: what the library's string table
/// "Almanac.strings" has under the English text, with the parts put where %1, %2 … stand. The English text
/// itself where the language has none.
std::string words(std::string_view english, std::initializer_list<std::string_view> parts = {});

/// The same for a text that counts something, in the language's plural form for that many: the count stands
/// at %1. "in %1 days": "in 1 day", "za 5 dni".
std::string wordsForCount(std::string_view english, std::int64_t count);

/// The locale that these words are written in, for the dates and times among them: the current one, or
/// American English where its language has no words.
Locale localeOfWords();

}  // namespace velmora
