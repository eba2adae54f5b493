#include <velmora/platform/graphics/Color.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {
namespace {

constexpr std::string_view hexadecimalDigits = "0123456789ABCDEF";

std::optional<int> digitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return std::nullopt;
}

}  // namespace

std::optional<Color> Color::fromText(std::string_view text) {
  if ((text.size() != 7 && text.size() != 9) || text.front() != '#') return std::nullopt;
  std::array<double, 4> components = {0, 0, 0, 1};
  for (std::size_t i = 0; 2 * i + 2 < text.size(); ++i) {
    const auto high = digitValue(text[2 * i + 1]), low = digitValue(text[2 * i + 2]);
    if (!high || !low) return std::nullopt;
    components[i] = (*high * 16 + *low) / 255.0;
  }
  return Color{components[0], components[1], components[2], components[3]};
}

std::string Color::text() const {
  std::string written = "#";
  for (const double component : {red, green, blue, alpha}) {
    const auto level = static_cast<std::size_t>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
    written += hexadecimalDigits[level / 16];
    written += hexadecimalDigits[level % 16];
  }
  return written;
}

}  // namespace velmora
