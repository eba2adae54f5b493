#pragma once

#include <velmora/posters/CalendarLayout.h>
#include <velmora/posters/CalendarMarks.h>
#include <velmora/posters/CalendarMonth.h>
#include <velmora/posters/CalendarPoster.h>
#include <velmora/posters/MoonPicture.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Draws the days of a month and the names of their weekdays.
class CalendarDays {
 public:
  CalendarDays(Sheet& sheet, const CalendarLayout& layout, const CalendarMonth& month,
               const PosterPlace& place, const MoonPicture& picture);

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

  Sheet& _sheet;
  const CalendarLayout& _layout;
  const CalendarMonth& _month;
  const PosterPlace& _place;
  const MoonPicture& _picture;
  const PosterTexts _local, _plain;
  const Palette& _palette;
  const double _unit;
  const LabelStyle _timeStyle;
};

}  // namespace velmora
