#include <velmora/platform/graphics/Font.h>

#include <array>
#include <utility>

namespace velmora {
namespace {

constexpr std::array<std::pair<std::string_view, FontWeight>, 4> weights = {{
    {"Regular", FontWeight::regular},
    {"Medium", FontWeight::medium},
    {"DemiBold", FontWeight::semibold},
    {"Bold", FontWeight::bold},
}};

FontWeight weightNamed(std::string_view name) {
  for (const auto& [known, weight] : weights) {
    if (known == name) return weight;
  }
  return FontWeight::regular;
}

}  // namespace

Font Font::named(std::string_view name, double size) {
  const std::size_t hyphen = name.find('-');
  if (hyphen == std::string_view::npos) return {std::string(name), size, FontWeight::regular};
  return {std::string(name.substr(0, hyphen)), size, weightNamed(name.substr(hyphen + 1))};
}

}  // namespace velmora
