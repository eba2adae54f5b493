#include <velmora/views/AlternateCalendarType.h>

namespace velmora {

std::optional<AlternateCalendar::Kind> kindOfAlternateCalendar(std::int64_t type) {
  switch (type) {
    case kHebrewCalendar:
      return AlternateCalendar::Kind::hebrew;
    case kIslamicUmmAlQuraCalendar:
      return AlternateCalendar::Kind::islamicUmmAlQura;
    case kBuddhistCalendar:
      return AlternateCalendar::Kind::buddhist;
    case kJapaneseCalendar:
      return AlternateCalendar::Kind::japanese;
    case kChineseCalendar:
      return AlternateCalendar::Kind::chinese;
    case kIndianCalendar:
      return AlternateCalendar::Kind::indian;
    default:
      return std::nullopt;
  }
}

std::optional<Locale> localeOfAlternateDays(std::int64_t type) {
  if (type == kHebrewCalendar) return Locale("he");
  if (type == kIslamicUmmAlQuraCalendar) return Locale("ara");
  return std::nullopt;
}

}  // namespace velmora
