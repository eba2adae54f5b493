#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>

#include <app/text/Spelling.h>

namespace velmora::app {
namespace {

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

/// The text in Latin letters without accents, whatever its script was.
std::string plainLatin(std::string_view text) {
  static const std::unique_ptr<icu::Transliterator> rules = [] {
    UErrorCode error = U_ZERO_ERROR;
    return std::unique_ptr<icu::Transliterator>(
        icu::Transliterator::createInstance("Any-Latin; Latin-ASCII", UTRANS_FORWARD, error));
  }();
  auto characters =
      icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  if (rules) rules->transliterate(characters);
  std::string latin;
  characters.toUTF8String(latin);
  return latin;
}

std::string lettersAndDigits(std::string_view text) {
  std::string form;
  for (const char c : text) {
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) form += c;
    if (c >= 'A' && c <= 'Z') form += static_cast<char>(c - 'A' + 'a');
  }
  return form;
}

}  // namespace

std::string searchForm(std::string_view text) {
  return isAscii(text) ? lettersAndDigits(text) : lettersAndDigits(plainLatin(text));
}

}  // namespace velmora::app
