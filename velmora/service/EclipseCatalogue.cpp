#include <velmora/service/EclipseCatalogue.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora {
namespace {

using Titles = std::map<std::string_view, std::string>;

/// Kept: "Penumbra" without its adjective ending, the key of the translations.
const Titles englishTitles = {
    {"TLE", "Total Lunar Eclipse"},  {"PLE", "Partial Lunar Eclipse"}, {"NLE", "Penumbra Lunar Eclipse"},
    {"TSE", "Total Solar Eclipse"},  {"PSE", "Partial Solar Eclipse"}, {"ASE", "Annular Solar Eclipse"},
    {"HSE", "Hybrid Solar Eclipse"},
};

/// The localised title of each code.
Titles titlesByCode() {
  Titles titles = englishTitles;
  for (auto& [code, title] : titles) title = Bundle::library().localizedString(title);
  return titles;
}

/// Reads "04/08/2024 18:17", each number with all its digits; none for any other text, be it a date or not.
std::optional<Instant> instantOfFullDigits(std::string_view text) {
  constexpr std::string_view shape = "00/00/0000 00:00";
  const auto hasShape = [](char character, char expected) {
    return expected == '0' ? '0' <= character && character <= '9' : character == expected;
  };
  if (!std::equal(text.begin(), text.end(), shape.begin(), shape.end(), hasShape)) return std::nullopt;

  const auto number = [&](std::size_t first, std::size_t digits) {
    int value = 0;
    for (const char digit : text.substr(first, digits)) value = 10 * value + (digit - '0');
    return value;
  };
  const int year = number(6, 4), hour = number(11, 2), minute = number(14, 2);
  const std::chrono::year_month_day day(std::chrono::year(year), std::chrono::month(unsigned(number(0, 2))),
                                        std::chrono::day(unsigned(number(3, 2))));
  if (year == 0 || !day.ok() || hour > 23 || minute > 59) return std::nullopt;
  return Instant(std::chrono::sys_days(day)) + std::chrono::hours(hour) + std::chrono::minutes(minute);
}

/// The instant of a line's first field. The formatter decides what is a date, but is slow to: what the
/// shipped catalogue holds is read without it.
std::optional<Instant> catalogueInstant(std::string_view text) {
  if (const auto instant = instantOfFullDigits(text)) return instant;
  DateFormatter formatter;
  formatter.setTimeZone(*TimeZone::named("UTC"));
  formatter.setDateFormat("MM/dd/yyyy HH:mm");
  formatter.setLocale(Locale("en_US"));
  return formatter.dateFromString(text);
}

/// The eclipse of one line "04/08/2024 18:17,TSE"; none for any other text.
std::shared_ptr<const EclipseInfo> readLine(std::string_view line, const Titles& titles) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos || line.find(',', comma + 1) != std::string_view::npos) return nullptr;
  const auto datetime = catalogueInstant(line.substr(0, comma));
  if (!datetime) return nullptr;

  auto eclipse = std::make_shared<EclipseInfo>();
  eclipse->key = line.substr(comma + 1);
  eclipse->datetime = *datetime;
  const auto title = titles.find(eclipse->key);
  if (title != titles.end()) eclipse->title = title->second;
  eclipse->isLunarEvent = eclipse->key.find("LE") != std::string::npos;
  return eclipse;
}

}  // namespace

std::optional<std::string> titleOfEclipse(const std::string& code) {
  const auto title = englishTitles.find(code);
  if (title == englishTitles.end()) return std::nullopt;
  return Bundle::library().localizedString(title->second);
}

EclipseCatalogue readEclipseCatalogue(std::string_view text) {
  const Titles titles = titlesByCode();
  EclipseCatalogue eclipses;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty()) continue;
    if (const auto eclipse = readLine(line, titles)) {
      eclipses[eclipse->datetime] = eclipse;
    } else {
      Log::write("Invalid entry");
    }
  }
  return eclipses;
}

}  // namespace velmora
