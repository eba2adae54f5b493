#include <array>
#include <filesystem>

#include <velmora/phases/KeptTables.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/PropertyList.h>

namespace velmora {
namespace {

constexpr std::array<const char*, 8> phaseNames = {
    "Full Moon",       "First Quarter",  "Last Quarter",   "New Moon",
    "Waxing Crescent", "Waxing Gibbous", "Waning Gibbous", "Waning Crescent",
};

std::vector<std::string> textsOf(const PropertyList::Array& values) {
  std::vector<std::string> texts;
  texts.reserve(values.size());
  for (const PropertyList& value : values) {
    if (value.text()) texts.push_back(*value.text());
  }
  return texts;
}

/// The months of a property list whose value is an array; of an array, its texts.
YearTable tableOf(const PropertyList::Dictionary& months) {
  YearTable table;
  for (const auto& [month, lines] : months) {
    if (lines.array()) table.emplace(month, textsOf(*lines.array()));
  }
  return table;
}

std::shared_ptr<const YearTable> readTable(const std::filesystem::path& path) {
  const auto list = PropertyList::fromFile(path);
  if (!list || !list->dictionary()) return nullptr;
  return std::make_shared<const YearTable>(tableOf(*list->dictionary()));
}

}  // namespace

std::shared_ptr<const YearTable> tableOfYear(std::int64_t year) {
  return MoonPhaseCalc::GetFileContents("Data/" + std::to_string(year));
}

std::shared_ptr<const YearTable> MoonPhaseCalc::GetFileContents(const std::string& resourceName) {
  static KeptTables kept;
  const auto path = Bundle::library().pathForResource(resourceName, "plist");
  if (!path) return nullptr;
  return kept.table(*path, [&] { return readTable(*path); });
}

std::int64_t MoonPhaseCalc::GetNumberOfDaysInMonth(std::int64_t month, std::int64_t year) {
  if (static_cast<std::uint64_t>(month) > 10) return 31;  // as unsigned, so that −1 is a December too
  if (month == 3 || month == 5 || month == 8 || month == 10) return 30;
  if (month != 1) return 31;
  if (year % 400 == 0) return 29;
  if (year % 100 == 0) return 28;
  return year % 4 == 0 ? 29 : 28;
}

std::optional<std::string> MoonPhaseCalc::nameForPhase(std::int64_t phase) {
  const auto index = static_cast<std::uint64_t>(phase);
  if (index >= phaseNames.size()) return std::nullopt;
  return phaseNames[static_cast<std::size_t>(index)];
}

}  // namespace velmora
