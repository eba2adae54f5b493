#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include <velmora/posters/Poster.h>
#include <velmora/views/AlternateCalendarType.h>

namespace velmora {

/// What a day is called, such as a holiday.
struct CalendarNote {
  std::chrono::year_month_day date;  ///< the day
  std::string text;                  ///< its name

  friend bool operator==(const CalendarNote&, const CalendarNote&) = default;
};

/// How a wall calendar shows its days.
struct CalendarPosterStyle {
  PaperTheme theme = PaperTheme::light;  ///< light or dark paper
  bool isTilted = false;                 ///< whether the discs hang as they do in the sky of the place
  unsigned firstWeekday = 1;  ///< of the weeks, 0 is Sunday; those from Monday have their ISO number
  std::int64_t secondCalendar = kNoAlternateCalendar;  ///< whose days stand beside; an AlternateCalendarType
  std::vector<CalendarNote> notes = {};                ///< names of days, of any month
};

/// A month's page of a wall calendar: of each day the Moon as it is lit in the evening at the place, rise and
/// set of Sun and Moon, and its name; principal phases with their time, eclipses that are seen from there in
/// rings. Made for paper that stands.
class CalendarPoster final : public Poster {
 public:
  /// Of the days of the month.
  CalendarPoster(PosterPlace place, std::chrono::year_month month, CalendarPosterStyle style = {})
      : Poster(std::move(place), style.theme), _month(month), _style(std::move(style)) {}

  bool isCovered() const override;
  void compose(Sheet& sheet) const override;

 private:
  std::chrono::year_month _month;
  CalendarPosterStyle _style;
};

}  // namespace velmora
