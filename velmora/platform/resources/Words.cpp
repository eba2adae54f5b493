#include <velmora/platform/resources/Words.h>

#include <optional>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/Languages.h>

namespace velmora {
namespace {

constexpr const char* table = "Almanac";

/// The text with the parts in the places of %1, %2 …
std::string filled(std::string_view text, std::initializer_list<std::string_view> parts) {
  std::string whole;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPlace = text[i] == '%' && i + 1 < text.size();
    const auto number = isPlace ? static_cast<std::size_t>(text[i + 1] - '1') : parts.size();
    if (number < parts.size()) {
      whole += parts.begin()[number];
      ++i;
    } else {
      whole += text[i];
    }
  }
  return whole;
}

bool hasWords(const Locale& locale) {
  const Bundle library = Bundle::library();
  for (const std::string& language : preferredLanguages(locale)) {
    if (language == "en" && locale.languageCode() != "en") return false;  // comes last for everyone
    if (library.pathForResource(table, "strings", language + ".lproj")) return true;
  }
  return false;
}

}  // namespace

std::string words(std::string_view english, std::initializer_list<std::string_view> parts) {
  if (localeOfWords().languageCode() == "en") return filled(english, parts);  // no table need be read
  return filled(Bundle::library().localizedString(std::string(english), "", table), parts);
}

std::string wordsForCount(std::string_view english, std::int64_t count) {
  const std::string other(english);
  const std::string form = other + " [" + localeOfWords().pluralCategory(count) + "]";
  const std::string text = Bundle::library().localizedString(form, "", table);
  return filled(text == form ? Bundle::library().localizedString(other, "", table) : text,
                {std::to_string(count)});
}

Locale localeOfWords() {
  thread_local std::optional<Locale> current;
  thread_local Locale ofWords("en_US");
  if (current != Locale::current()) {
    current = Locale::current();
    ofWords = hasWords(*current) ? *current : Locale("en_US");
  }
  return ofWords;
}

}  // namespace velmora
