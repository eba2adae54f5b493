#include <app/text/DisplayWidth.h>

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdint>

namespace velmora::app {
namespace {

std::size_t widthOf(UChar32 character) {
  constexpr std::uint32_t joining = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK;
  if ((U_GET_GC_MASK(character) & joining) != 0) return 0;
  const int form = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
  return form == U_EA_WIDE || form == U_EA_FULLWIDTH ? 2 : 1;
}

}  // namespace

std::size_t displayWidth(std::string_view text) {
  constexpr auto isPrintableAscii = [](char c) { return c >= ' ' && c <= '~'; };
  if (std::all_of(text.begin(), text.end(), isPrintableAscii)) return text.size();
  const auto characters =
      icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  std::size_t width = 0;
  for (std::int32_t i = 0; i < characters.length(); i = characters.moveIndex32(i, 1))
    width += widthOf(characters.char32At(i));
  return width;
}

}  // namespace velmora::app
