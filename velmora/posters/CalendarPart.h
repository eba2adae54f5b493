#pragma once

#include <velmora/posters/CalendarLayout.h>
#include <velmora/posters/CalendarMonth.h>
#include <velmora/posters/MoonPicture.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What the parts of a month's page draw with.
class CalendarPart {
 public:
  CalendarPart(Sheet& sheet, const CalendarLayout& layout, const CalendarMonth& month,
               const PosterPlace& place, const MoonPicture& picture);

 protected:
  /// The disc as it is lit and lies at the moment: its picture, or its shape where that is missing.
  void drawDisc(Point center, double radius, Instant at, const almanac::Illumination& moon,
                bool isTilted) const;

  Sheet& _sheet;
  const CalendarLayout& _layout;
  const CalendarMonth& _month;
  const PosterPlace& _place;
  const MoonPicture& _picture;
  const PosterTexts _local;  ///< at the place
  const PosterTexts _plain;  ///< of dates and numbers that belong to no zone
  const Palette& _palette;
  const double _unit;
};

}  // namespace velmora
