#include <app/text/WritingDirection.h>

#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace velmora::app {
namespace {

bool isRightToLeft(UChar32 character) {
  const UCharDirection direction = u_charDirection(character);
  return direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC;
}

}  // namespace

std::string isolated(const std::string& text) {
  const auto characters = icu::UnicodeString::fromUTF8(text);
  for (std::int32_t i = 0; i < characters.length(); i = characters.moveIndex32(i, 1))
    if (isRightToLeft(characters.char32At(i))) return "\u2067" + text + "\u2069";
  return text;
}

}  // namespace velmora::app
