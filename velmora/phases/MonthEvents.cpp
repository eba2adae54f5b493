#include <velmora/foundation/DateHelper.h>
#include <velmora/foundation/TableYears.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/Months.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/TableLine.h>

namespace velmora {
namespace {

const std::vector<std::string>& linesOfMonth(const YearTable& table, std::int64_t month) {
  static const std::vector<std::string> noLines;
  const auto lines = table.find(std::to_string(month + 1));
  return lines == table.end() ? noLines : lines->second;
}

/// The event in the location's month and time, if it falls into the month wanted.
std::shared_ptr<MonthDataItem> itemInMonth(const TableEvent& event, const Calendar& calendar,
                                           std::int64_t wantedYear, std::int64_t wantedMonth,
                                           const GeoLocationData& location, bool use24HourTimeFormat) {
  const DateComponents local = calendar.components(event.instant);
  if (local.year != wantedYear || local.month != wantedMonth + 1) return nullptr;
  const Instant shifted =
      event.instant + Seconds(static_cast<double>(location.GetTimezoneIntervalFromGMT(event.instant)));
  // Kept: the shifted instant is written in the default zone, so its time is shifted twice unless that is
  // UTC.
  std::string time = DateHelper::GetTimeFormattedString(shifted, use24HourTimeFormat).value_or("");
  return std::make_shared<MonthDataItem>(event.phase, local.day, std::move(time), event.instant);
}

}  // namespace

MoonPhaseCalc::MonthEvents MoonPhaseCalc::GetMoonPhaseDataForMonth(
    const YearTable& table, std::int64_t yearOfData, std::int64_t monthOfData, Calendar& calendar,
    std::int64_t secondsFromGMT, std::int64_t currentYear, std::int64_t currentMonth,
    const GeoLocationData& location, bool use24HourTimeFormat) {
  MonthEvents events;
  DateFormatter outputFormatter = VelmoraCalendar::calendarDateFormatter();
  outputFormatter.setDateFormat("EEE MMM d',' hh:mm a");
  const TimeZone utc = TimeZone::fixed(0);
  const auto process = [&](const YearTable& data, std::int64_t year, std::int64_t month) {
    InternalProcessData(linesOfMonth(data, month), year, month, calendar, secondsFromGMT, currentYear,
                        currentMonth, outputFormatter, utc, events, location, use24HourTimeFormat);
  };

  // An event near an edge of its month in UTC may lie in the month beside it in the location's zone.
  if (monthOfData > zeroBasedJanuary) process(table, yearOfData, monthOfData - 1);
  process(table, yearOfData, monthOfData);
  if (monthOfData < zeroBasedDecember) process(table, yearOfData, monthOfData + 1);
  if (monthOfData == zeroBasedJanuary && yearOfData > firstTableYear) {
    if (const auto previous = tableOfYear(yearOfData - 1))
      process(*previous, yearOfData - 1, zeroBasedDecember);
  }
  if (monthOfData == zeroBasedDecember && yearOfData < lastTableYear) {
    if (const auto next = tableOfYear(yearOfData + 1)) process(*next, yearOfData + 1, zeroBasedJanuary);
  }
  return events;
}

void MoonPhaseCalc::InternalProcessData(const std::vector<std::string>& lines, std::int64_t yearOfData,
                                        std::int64_t monthOfData, Calendar& calendar,
                                        std::int64_t /*secondsFromGMT*/, std::int64_t currentYear,
                                        std::int64_t currentMonth, const DateFormatter& /*outputFormatter*/,
                                        const TimeZone& /*utc*/, MonthEvents& processedData,
                                        const GeoLocationData& location, bool use24HourTimeFormat) {
  // A place without a named zone has one offset whatever the instant.
  calendar.setTimeZone(location.calendarZone(location.GetTimezoneIntervalFromGMT(Instant())));
  for (const std::string& line : lines) {
    const std::optional<TableEvent> event = readTableLine(line, yearOfData, monthOfData + 1);
    if (!event) continue;
    auto item = itemInMonth(*event, calendar, currentYear, currentMonth, location, use24HourTimeFormat);
    if (item) processedData.push_back(std::move(item));
  }
}

}  // namespace velmora
