#include <velmora/views/LocalizedText.h>

#include <string_view>

#include <velmora/platform/resources/Bundle.h>

namespace [[gnu::visibility("hidden")]] velmora {

std::string localizedText(const std::string& key) { return Bundle::library().localizedString(key); }

std::string localizedText(const std::string& key, const std::string& value) {
  constexpr std::string_view placeholder = "%@";
  std::string text = localizedText(key);
  const std::size_t at = text.find(placeholder);
  return at == std::string::npos ? text : text.replace(at, placeholder.size(), value);
}

}  // namespace velmora
