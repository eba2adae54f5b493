#pragma once

#include <velmora/posters/CalendarMarks.h>
#include <velmora/posters/CalendarPart.h>
#include <velmora/posters/CalendarPoster.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Draws the days of a month and the names of their weekdays.
class CalendarDays final : private CalendarPart {
 public:
  using CalendarPart::CalendarPart;

  void draw(const CalendarPosterStyle& style) const;

 private:
  void drawWeekdays() const;
  void drawWeeks() const;
  void drawDay(const CalendarDay& day, const CalendarPosterStyle& style, CalendarMarks& marks) const;
  void drawNumbers(const CalendarDay& day, const CalendarLayout::Cell& cell, std::int64_t secondCalendar,
                   bool hasName) const;
  void drawName(const std::string& name, const CalendarLayout::Cell& cell) const;
  void drawMoon(const CalendarDay& day, const CalendarLayout::Cell& cell, bool isTilted) const;
  void drawTimes(const CalendarDay& day, almanac::Body body, const CalendarLayout::Times& rooms,
                 CalendarMarks& marks) const;
  LabelStyle timeStyle() const;

  const LabelStyle _timeStyle = timeStyle();
};

}  // namespace velmora
