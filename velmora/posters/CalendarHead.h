#pragma once

#include <velmora/posters/CalendarLayout.h>
#include <velmora/posters/CalendarMonth.h>
#include <velmora/posters/MoonPicture.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What stands above and below a month's days: its name, its principal phases, the meaning of the signs, its
/// eclipses.
class CalendarHead {
 public:
  CalendarHead(Sheet& sheet, const CalendarLayout& layout, const CalendarMonth& month,
               const PosterPlace& place, const MoonPicture& picture);

  /// With the discs as they hang in the sky, or upright.
  void draw(bool isTilted) const;

 private:
  void drawTitle() const;
  void drawPhases(bool isTilted) const;
  void drawKeys() const;
  void drawNotes() const;
  std::vector<const CalendarDay*> eclipseDays() const;
  std::string eclipseText(const almanac::LocalEclipse& eclipse) const;

  Sheet& _sheet;
  const CalendarLayout& _layout;
  const CalendarMonth& _month;
  const PosterPlace& _place;
  const MoonPicture& _picture;
  const PosterTexts _local, _plain;
  const Palette& _palette;
  const double _unit;
};

/// The disc as it is lit and lies at the moment: its picture, or its shape where that is missing.
void drawDisc(Sheet& sheet, const MoonPicture& picture, Point center, double radius, const PosterPlace& place,
              Instant at, bool isTilted);

}  // namespace velmora
