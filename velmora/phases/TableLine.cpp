#include <velmora/phases/TableLine.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <string>

#include <velmora/phases/Months.h>
#include <velmora/phases/Phase.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr std::size_t fieldCount = 3;
constexpr std::int64_t lastYear = 9999;

std::string withPairsOfBlanksReplaced(std::string_view line) {
  std::string text;
  text.reserve(line.size());
  for (std::size_t i = 0; i < line.size(); ++i) {
    text += line[i];
    if (line.substr(i, 2) == "  ") ++i;
  }
  return text;
}

/// The first three fields; none if there are fewer.
std::optional<std::array<std::string_view, fieldCount>> splitAtBlanks(std::string_view text) {
  std::array<std::string_view, fieldCount> fields;
  for (std::size_t i = 0; i < fieldCount; ++i) {
    const std::size_t end = text.find(' ');
    fields[i] = text.substr(0, end);
    if (end != text.npos) {
      text.remove_prefix(end + 1);
    } else if (i + 1 < fieldCount) {
      return std::nullopt;
    }
  }
  return fields;
}

/// A number of digits alone.
std::optional<unsigned> number(std::string_view text) {
  unsigned value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

/// The time since midnight of a text "HH:mm".
std::optional<std::chrono::minutes> timeOfDay(std::string_view text) {
  const std::size_t colon = std::min(text.find(':'), text.size());
  const std::optional<unsigned> hour = number(text.substr(0, colon));
  const std::optional<unsigned> minute = number(text.substr(std::min(colon + 1, text.size())));
  if (!hour || !minute || *hour > 23 || *minute > 59) return std::nullopt;
  return std::chrono::hours(*hour) + std::chrono::minutes(*minute);
}

std::optional<std::chrono::sys_days> dateInMonth(std::string_view dayText, std::int64_t year,
                                                 std::int64_t month) {
  const std::optional<unsigned> day = number(dayText);
  if (!day || year < 1 || year > lastYear || month < 1 || month > monthsOfYear) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year)),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(*day)};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days(date);
}

}  // namespace

std::optional<TableEvent> readTableLine(std::string_view line, std::int64_t year, std::int64_t month) {
  const std::string text = withPairsOfBlanksReplaced(line);
  const auto fields = splitAtBlanks(text);
  if (!fields) return std::nullopt;
  const auto& [dayText, timeText, code] = *fields;
  const std::optional<std::chrono::sys_days> date = dateInMonth(dayText, year, month);
  const std::optional<std::chrono::minutes> time = timeOfDay(timeText);
  if (!date || !time) return std::nullopt;
  return TableEvent{.instant = Instant(*date + *time), .phase = phaseForCode(code)};
}

std::int64_t phaseForCode(std::string_view code) {
  if (code == "FM") return kFullMoon;
  if (code == "FQ") return kFirstQuarter;
  if (code == "LQ") return kLastQuarter;
  if (code == "NM") return kNewMoon;
  return kUnknownPhase;
}

float fullFactorForPrincipalPhase(std::int64_t phase) {
  switch (phase) {
    case kFullMoon:
      return 1.0F;
    case kFirstQuarter:
    case kLastQuarter:
      return 0.5F;
    default:
      return 0.0F;
  }
}

}  // namespace velmora
