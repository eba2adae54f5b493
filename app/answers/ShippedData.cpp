#include <app/answers/ShippedData.h>

#include <algorithm>
#include <map>

#include <app/text/Errors.h>
#include <app/text/ValueTexts.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/Phase.h>

namespace velmora::app {
namespace {

constexpr std::size_t fewestPhases = 3;  // of a month: a February may have three of the four

std::string pathIn(const Bundle& bundle, const std::string& name) {
  return quotePath((bundle.directory() / name).string());
}

/// Whether each line under the month's number, 1 to 12, is a phase of that month in UTC.
bool isWhole(const std::vector<std::string>& lines, std::int64_t year, std::int64_t month) {
  GeoLocationData greenwich;
  greenwich.SetLocation(51.48, 0, "Greenwich", "UTC", 0, false);
  const TimeZone utc = TimeZone::fixed(0);
  Calendar calendar(utc);
  MoonPhaseCalc::MonthEvents phases;
  MoonPhaseCalc::InternalProcessData(lines, year, month - 1, calendar, 0, year, month - 1, DateFormatter(),
                                     utc, phases, greenwich, true);
  return lines.size() >= fewestPhases && phases.size() == lines.size() &&
         std::none_of(phases.begin(), phases.end(),
                      [](const auto& event) { return event->phase == kUnknownPhase; });
}

/// The tables that were found whole, by their years.
std::map<std::chrono::year, std::shared_ptr<const YearTable>>& wholeTables() {
  static std::map<std::chrono::year, std::shared_ptr<const YearTable>> tables;
  return tables;
}

/// The first month without its phases; none if the table is whole.
std::optional<std::int64_t> damagedMonth(const YearTable& table, std::int64_t year) {
  for (std::int64_t month = 1; month <= 12; ++month) {
    const auto lines = table.find(std::to_string(month));
    if (lines == table.end() || !isWhole(lines->second, year, month)) return month;
  }
  return std::nullopt;
}

}  // namespace

std::shared_ptr<const YearTable> wholeTable(std::chrono::year year) {
  const std::string number = std::to_string(static_cast<int>(year));
  const std::string file = pathIn(Bundle::library(), "Data/" + number + ".plist");
  auto table = tableOfYear(static_cast<int>(year));
  if (!table) throw Failure("the phase table of " + number + " cannot be read from " + file);
  auto& known = wholeTables()[year];
  if (table == known) return table;
  if (const auto month = damagedMonth(*table, static_cast<int>(year)))
    throw Failure("the phase table of " + number + " is damaged in month " + std::to_string(*month) + ": " +
                  file);
  known = table;
  return table;
}

void checkNeighbour(std::chrono::year_month month) {
  const auto year = month.year();
  if (month.month() == std::chrono::January && year > firstTableYear)
    wholeTable(year - std::chrono::years(1));
  if (month.month() == std::chrono::December && year < lastTableYear)
    wholeTable(year + std::chrono::years(1));
}

void checkPictures(const Bundle& bundle, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const auto picture = bundle.image(name);
    if (!picture || picture->pixels().empty())
      throw Failure("the picture " + name + ".png cannot be read from " + pathIn(bundle, ""));
  }
}

}  // namespace velmora::app
