#include <velmora/foundation/DateHelper.h>

#include <velmora/foundation/TableYears.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora {
namespace {

constexpr std::int64_t minutesPerHour = 60;

constexpr const char* dateFormat = "EEE MMMM d',' yyyy";
constexpr const char* time24Format = "HH:mm";
constexpr const char* time12Format = "hh:mm a";
constexpr const char* dateAndTime24Format = "EEE MMM d',' yyyy  HH:mm";
constexpr const char* dateAndTime12Format = "EEE MMM d',' yyyy  hh:mm a";
constexpr const char* shortDateAndTimeFormat = "MMM d',' yyyy  hh:mm a";

}  // namespace

bool DateHelper::IsDateValid(std::optional<Instant> date) {
  if (!date) return false;
  const std::int64_t year = VelmoraCalendar::applicationCalendar().components(*date).year;
  return year >= firstTableYear && year <= lastTableYear;
}

bool DateHelper::AreEqual(std::optional<Instant> date1, std::optional<Instant> date2) {
  if (!date1 || !date2) return false;
  const Calendar calendar = VelmoraCalendar::applicationCalendar();
  const DateComponents first = calendar.components(*date1);
  const DateComponents second = calendar.components(*date2);
  return first.day == second.day && first.month == second.month;
}

std::optional<Instant> DateHelper::AddSecondsToDateFromMidnight(std::optional<Instant> date,
                                                                std::int64_t secondsFromMidnight) {
  if (!date) return std::nullopt;
  return VelmoraCalendar::applicationCalendar().startOfDay(*date) +
         Seconds(static_cast<double>(secondsFromMidnight));
}

std::optional<Instant> DateHelper::AdjustDaysToDate(std::optional<Instant> date, std::int64_t days) {
  if (!date) return std::nullopt;
  return VelmoraCalendar::applicationCalendar().dateByAddingDays(days, *date);
}

std::optional<std::string> DateHelper::GetDateFormattedString(std::optional<Instant> date) {
  return GetTimeFormattedStringWithFormat(date, dateFormat);
}

std::optional<std::string> DateHelper::GetTimeFormattedStringWithFormat(std::optional<Instant> date,
                                                                        const std::string& formatString) {
  if (!date) return std::nullopt;
  DateFormatter formatter = VelmoraCalendar::calendarDateFormatter();
  formatter.setDateFormat(formatString);
  return formatter.stringFromDate(*date);
}

std::string DateHelper::GetDayLengthString(std::int64_t minutes) {
  const auto hours = static_cast<std::int32_t>(minutes / minutesPerHour);
  const auto minutesLeft = static_cast<std::int32_t>(minutes % minutesPerHour);
  return integerText(hours, 2) + " hrs " + integerText(minutesLeft, 2) + " mins";
}

std::optional<std::string> DateHelper::GetTimeFormattedString(std::optional<Instant> date, bool use24Hour) {
  return GetTimeFormattedStringWithFormat(date, use24Hour ? time24Format : time12Format);
}

std::optional<std::string> DateHelper::GetDateAndTimeFormattedString(std::optional<Instant> date,
                                                                     bool use24Hour) {
  return GetTimeFormattedStringWithFormat(date, use24Hour ? dateAndTime24Format : dateAndTime12Format);
}

std::optional<std::string> DateHelper::GetDateAndTimeFormattedShortString(std::optional<Instant> date,
                                                                          bool /*use24Hour*/) {
  return GetTimeFormattedStringWithFormat(date, shortDateAndTimeFormat);
}

}  // namespace velmora
