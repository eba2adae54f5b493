#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <velmora/astronomy/PositionData.h>
#include <velmora/astronomy/RiseSetData.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/phases/MonthDataItem.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/PhaseItem.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/resources/Image.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/service/EclipseCatalogue.h>
#include <velmora/service/EclipseInfo.h>
#include <velmora/service/RecordSources.h>

namespace velmora {

struct TableEvent;

/// Posted on the default notification centre after the selected date moved.
/// Kept: the spelling "Calender" of both names.
extern const char kCalenderDateChangedNotification[];
/// Posted on the default notification centre after the selected place changed.
extern const char kCalenderLocationChangedNotification[];

/// Start here: the one service that an application asks. It holds the selected day and place, loads the
/// year's table, keeps the month's phases, pictures and rise/set items, and answers every question about
/// them.
///
/// Give it a place before or together with the first date. For the thread of the user interface only.
class MoonPhaseData {
 public:
  /// As the phase calendar returns them.
  using MonthEvents = MoonPhaseCalc::MonthEvents;
  using PhaseCalendar = MoonPhaseCalc::PhaseCalendar;
  using ImageCalendar = MoonPhaseCalc::ImageCalendar;
  /// The month's days by day number, 1 to the month's length.
  using RiseSetItems = std::map<std::int64_t, std::shared_ptr<RiseSetPhaseItem>>;
  /// A year's principal events by month, 1 to 12, in the order of the table.
  using YearItems = std::map<std::int64_t, std::vector<std::shared_ptr<RiseSetPhaseItem>>>;

  /// The one instance, made on the first call.
  static MoonPhaseData& sharedInstance();
  /// Starts the shared instance afresh: for tests, and for a host that answers unrelated requests.
  static void resetSharedInstance();

  /// A service without a selection.
  MoonPhaseData();
  MoonPhaseData(const MoonPhaseData&) = delete;
  MoonPhaseData& operator=(const MoonPhaseData&) = delete;

  /// Puts another source in place of the fixed rules for rise and set, or for the eclipse of a day; an empty
  /// one puts the rules back. The month's rise/set items are built anew on demand; nothing is posted.
  void setRiseSetSource(RiseSetSource source);
  void setEclipseSource(EclipseSource source) { _eclipseSource = std::move(source); }

  // The selection and what belongs to it (Selection.cpp)

  /// The calendar of every date that the service splits or builds, in the selected place's zone.
  const Calendar& calendar() const { return _calendar; }
  const std::optional<Instant>& currentDate() const { return _currentDate; }
  std::int64_t currentDay() const { return _currentDay; }      ///< 1..31; 0 before the first selection
  std::int64_t currentMonth() const { return _currentMonth; }  ///< 1..12; 0 before the first selection
  std::int64_t currentYear() const { return _currentYear; }    ///< 0 before the first selection
  const std::shared_ptr<GeoLocationData>& currentLocation() const { return _currentLocation; }

  /// Whether the month's event times are written in the 24-hour form. Only the host application sets it.
  bool use24HrTimeFormat() const { return _use24HrTimeFormat; }
  void setUse24HrTimeFormat(bool use24Hour) { _use24HrTimeFormat = use24Hour; }

  /// Selects the instant and posts "CalenderDateChanged". The instant already selected, and one whose year in
  /// the default zone is not 2000 to 2040, changes nothing and posts nothing.
  void SetSelectedDate(std::optional<Instant> date);

  /// Selects the start of that day at the selected place; nothing when day, month and year are already
  /// selected.
  void changeSelectedDay(std::int64_t day, std::int64_t month, std::int64_t year);

  /// Selects the place and posts "CalenderLocationChanged". The month's dictionaries are built anew on
  /// demand. Kept: the month's event list stays that of the place before while the month stays the same.
  void SetSelectedLocation(std::shared_ptr<GeoLocationData> location);

  /// Selects both.
  /// Kept: the date is not checked, and "CalenderLocationChanged" alone is posted.
  void SetSelectedLocation(std::shared_ptr<GeoLocationData> location, std::optional<Instant> date);

  /// Forgets the month's dictionaries when the date lies in another month than the selected one.
  void dateWillChangeTo(std::optional<Instant> date);

  /// Moves day, month and year to the date and reloads what that makes stale.
  void updateCacheForDate(std::optional<Instant> date);

  /// Reads the year's table into `rawDataDictionary`; none when there is no such table.
  void loadDataForYear(std::int64_t year);
  /// Reads a year's table without keeping it; none when there is no such table.
  std::shared_ptr<const YearTable> getDataForYear(std::int64_t year) const;

  /// Builds `currentMonthData` anew and moves the calendar to the place's zone.
  /// Kept: does nothing while no table is loaded, so that a year without one leaves the former list.
  void calculateMoonPhases();

  // The selected month (SelectedMonth.cpp)

  /// The table of `currentYear`; none before a year is loaded or when the year has none.
  const std::shared_ptr<const YearTable>& rawDataDictionary() const { return _rawDataDictionary; }
  const std::shared_ptr<const YearTable>& currentYearDictionary() const { return _rawDataDictionary; }

  /// The principal events of the selected month, in the order of MoonPhaseCalc's month query.
  const MonthEvents& currentMonthData() const { return _currentMonthData; }
  const MonthEvents& currentMonthPhases() const { return _currentMonthData; }

  /// The month's dictionaries as they stand: none until the first request after a change.
  const std::shared_ptr<const ImageCalendar>& currentImageDictionary() const {
    return _currentImageDictionary;
  }
  const std::shared_ptr<const PhaseCalendar>& currentPhaseDictionary() const {
    return _currentPhaseDictionary;
  }
  const std::shared_ptr<const RiseSetItems>& currentRiseSetPhaseItemDictionary() const {
    return _currentRiseSetPhaseItemDictionary;
  }

  /// Picture numbers and phases of the selected month by day, built on the first request; none without a
  /// table.
  std::shared_ptr<const ImageCalendar> currentMonthImageDictionary();
  std::shared_ptr<const PhaseCalendar> currentMonthPhaseDictionary();

  /// The phases of the date's month, made at each call; none without a table.
  /// Kept: the table is that of the selected year, whatever the date's year is.
  std::shared_ptr<const PhaseCalendar> monthPhaseDictionaryForDate(Instant date) const;

  /// The principal event of the selected day; none on most days.
  /// Kept: reads the shared instance.
  std::shared_ptr<MonthDataItem> monthDataItemForCurrentDay() const;

  /// The English name of a phase number 0..7; none for any other.
  std::optional<std::string> nameForPhase(std::int64_t phase) const;

  /// Whether the selected place lies south of the equator, which itself counts as northern.
  bool isSouthernHemisphere() const;

  /// The lit fraction of a day is in `currentMonthPhaseDictionary`.
  /// Kept: this is the constant 0.2.
  float phaseFullFactorForCurrentDay() const;

  /// The picture shown while there is no other; none when it is missing, and then tried again.
  std::shared_ptr<const Image> phaseImagePlaceholder();
  const std::shared_ptr<const Image>& placeHolderImage() const { return _placeHolderImage; }

  /// The selected day's phase picture, mirrored south of the equator; none when it is missing.
  /// Kept: day and picture number are the shared instance's, the hemisphere is this one's.
  std::shared_ptr<const Image> phaseImageForCurrentDate() const;

  // Eclipses (EclipseQueries.cpp)

  /// The catalogue; none until it has been read.
  const std::shared_ptr<const EclipseCatalogue>& eventsData() const { return _eventsData; }

  /// Reads the catalogue afresh; when it cannot be read the old one stays. An unreadable line is logged as
  /// "Invalid entry" and skipped; of two eclipses at one instant the later line stays.
  void loadEventsFromFile();

  /// The earliest eclipse of the instant's day in the zone that happens while the eclipsed body is up at the
  /// selected place; none without one.
  std::shared_ptr<const EclipseInfo> eventsOnDate(Instant date, const TimeZone& inTimezone);

  // Searches for phases (PhaseQueries.cpp)

  /// The next new or full moon from the selected day on, in this month and the next, with `moonAge` set to
  /// the days until it; none if there is none.
  /// Kept: "today" is the selected day; `moonAge` is set in the month's shared item itself.
  std::shared_ptr<RiseSetPhaseItem> nextEventSinceToday();

  /// The first new or full moon of the dictionary from that day on; none if there is none.
  std::shared_ptr<RiseSetPhaseItem> nextEventSince(std::int64_t day, const RiseSetItems& withEvents) const;

  /// The first event of the phase (0..3) later than now; none if there is none.
  /// Kept: the selected month and the next alone are searched; instants compare as the year's items give
  /// them, shifted by the place's offset.
  std::shared_ptr<RiseSetPhaseItem> nextEventSinceTodayWithPhase(std::int64_t phase) const;

  /// The events of the phase later than `from` and not later than `to`, month by month.
  /// Kept: instants compare as the year's items give them, shifted by the place's offset; the walk ends at
  /// the first item later than `to`.
  std::vector<std::shared_ptr<RiseSetPhaseItem>> matchingEventsWithPhase(std::int64_t phase,
                                                                         std::optional<Instant> from,
                                                                         std::optional<Instant> to) const;

  /// The phase of the selected day's event if it has one, else the intermediate phase (4..7) after the
  /// month's latest event not later than the instant, else −1.
  /// Kept: reads the shared instance; the selected day decides before the instant.
  std::int64_t phaseEventForDate(Instant date) const;

  // Rise, set and phase together (RiseSetItems.cpp)

  /// One item a day of the selected month, the same until the month or the place changes; none without a
  /// table.
  std::shared_ptr<const RiseSetItems> GetRiseSetPhaseItemsForCurrentMonth();

  /// The same of the month after it, made at each call; none after December 2040 and without that month's
  /// table.
  /// Kept: every item is made for 03:00 of its day, and `timeText` is that instant on the device's clock.
  std::shared_ptr<const RiseSetItems> GetRiseSetPhaseItemsForNextMonth() const;

  /// The principal events of a year, made at each call; empty without a table.
  /// Kept: an item's `localDate` is its instant shifted by the place's offset, unlike a month's event, and
  /// the rise and set are those searched for from there.
  YearItems GetRiseSetPhaseItemsForYear(std::int64_t year) const;

  /// The selected day's item; none if there is none.
  std::shared_ptr<RiseSetPhaseItem> GetRiseSetPhaseItemForCurrentDate();

  /// Rise, set and civil twilight of the instant's day at the selected place.
  RiseSetData GetRiseSetDataForDate(Instant date) const;

  /// The same a day, from `from` by steps of one calendar day while not later than `to`; the first always.
  /// Ends with the calendar, whose last day is 31 December 32767.
  std::vector<RiseSetData> getRiseSetDataFrom(Instant from, Instant to) const;

  /// Rewrites the item's four rise and set texts in the user's short time style. Texts that are no 12-hour
  /// clock time stay as they are, the Sun's with a mark among them.
  /// Kept: the Moon's mark for the next day is glued to the time as "**"; the zone plays no part.
  void localizeDateTimeStringsForRiseSetPhaseItem(RiseSetPhaseItem* item,
                                                  const std::optional<TimeZone>& withTimezone) const;

  // Positions (PositionQueries.cpp)

  /// Where the body stands at the instant, seen from the selected place; none without a date, place or zone.
  /// A place with a fixed offset alone has no zone; see `GeoLocationData::SetLocation` for what to do about
  /// it.
  std::optional<PositionData> GetMoonPositionDataForDate(std::optional<Instant> date) const;
  std::optional<PositionData> GetSunPositionDataForDate(std::optional<Instant> date) const;

  /// Where the body stands at a time of the day. `withTimeInterval`: minutes after midnight, by the clock;
  /// fractions are cut. For the Sun 24 hours or more give none.
  /// Kept: for the Moon they count from the following day's midnight, whole days beyond it dropped.
  std::optional<PositionData> GetMoonPositionDataForDate(std::optional<Instant> date,
                                                         double withTimeInterval) const;
  std::optional<PositionData> GetSunPositionDataForDate(std::optional<Instant> date,
                                                        double withTimeInterval) const;

  /// The body's positions over a day (see RiseAndSetCalc); none without a date, place or zone.
  std::optional<std::vector<PositionData>> Get24HourSunPositionsForDate(std::optional<Instant> date) const;
  std::optional<std::vector<PositionData>> Get24HourMoonPositionsForDate(std::optional<Instant> date) const;

  /// Offset from GMT in seconds of the zone at 09:00 of the instant's day at the selected place.
  std::int64_t gmtIntervalForDate(Instant date, const TimeZone& withTimezone) const;

  /// The direction in which the Moon's lit side faces: the angle at the Moon from straight up to the Sun,
  /// radians, positive toward increasing azimuth, (−π, π].
  double orientationRadiansForMoonAt(const PositionData& moon, const PositionData& sunAt) const;

 private:
  const GeoLocationData& place() const;
  TimeZone zoneOfPlace() const;
  std::optional<std::int64_t> offsetOfPlace(std::optional<Instant> date) const;
  void useZoneOfPlace();
  void forgetMonth();
  std::shared_ptr<const PhaseCalendar> phasesOfMonth() const;
  void setPlace(std::shared_ptr<GeoLocationData> location);
  RiseSetData riseSetOf(Instant date, std::int64_t secondsFromGMT) const;
  std::shared_ptr<RiseSetPhaseItem> riseSetItem(const PhaseItem& day, Instant instant,
                                                const Calendar& timeCalendar) const;
  std::shared_ptr<RiseSetPhaseItem> eventItem(const TableEvent& event, const Calendar& localCalendar) const;

  RiseSetSource _riseSetSource;
  EclipseSource _eclipseSource;
  Calendar _calendar;
  MonthEvents _currentMonthData;
  std::shared_ptr<const YearTable> _rawDataDictionary;
  std::int64_t _currentDay = 0;
  std::int64_t _currentMonth = 0;
  std::int64_t _currentYear = 0;
  std::optional<Instant> _currentDate;
  std::shared_ptr<GeoLocationData> _currentLocation;
  bool _use24HrTimeFormat = false;
  std::shared_ptr<const EclipseCatalogue> _eventsData;
  std::shared_ptr<const ImageCalendar> _currentImageDictionary;
  std::shared_ptr<const PhaseCalendar> _currentPhaseDictionary;
  std::shared_ptr<const RiseSetItems> _currentRiseSetPhaseItemDictionary;
  std::shared_ptr<const Image> _placeHolderImage;
};

}  // namespace velmora
