#include <velmora/service/EclipseCatalogue.h>

#include <algorithm>
#include <optional>
#include <string>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora {
namespace {

using Titles = std::map<std::string_view, std::string>;

/// The localised title of each code.
/// Kept: "Penumbra" without its adjective ending, the key of the translations.
Titles titlesByCode() {
  Titles titles = {
      {"TLE", "Total Lunar Eclipse"},  {"PLE", "Partial Lunar Eclipse"}, {"NLE", "Penumbra Lunar Eclipse"},
      {"TSE", "Total Solar Eclipse"},  {"PSE", "Partial Solar Eclipse"}, {"ASE", "Annular Solar Eclipse"},
      {"HSE", "Hybrid Solar Eclipse"},
  };
  for (auto& [code, title] : titles) title = Bundle::library().localizedString(title);
  return titles;
}

DateFormatter catalogueDates() {
  DateFormatter formatter;
  formatter.setTimeZone(*TimeZone::named("UTC"));
  formatter.setDateFormat("MM/dd/yyyy HH:mm");
  formatter.setLocale(Locale("en_US"));
  return formatter;
}

/// The eclipse of one line "04/08/2024 18:17,TSE"; none for any other text.
std::shared_ptr<const EclipseInfo> readLine(std::string_view line, const DateFormatter& dates,
                                            const Titles& titles) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos || line.find(',', comma + 1) != std::string_view::npos) return nullptr;
  const auto datetime = dates.dateFromString(line.substr(0, comma));
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

EclipseCatalogue readEclipseCatalogue(std::string_view text) {
  const DateFormatter dates = catalogueDates();
  const Titles titles = titlesByCode();
  EclipseCatalogue eclipses;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty()) continue;
    if (const auto eclipse = readLine(line, dates, titles)) {
      eclipses[eclipse->datetime] = eclipse;
    } else {
      Log::write("Invalid entry");
    }
  }
  return eclipses;
}

}  // namespace velmora
